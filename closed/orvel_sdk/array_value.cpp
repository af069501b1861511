#include <stdexcept>
#include <string>

#include "orvel_sdk/array_storage.h"
#include "orvel_sdk/representation.h"
#include "orvel_sdk/value_rep.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace Orvel {

using Internal::arrayIn;
using Internal::elementsOf;
using Internal::repOf;

ArrayValue::ArrayValue(const Value& value) : value_(value) { arrayIn(value_); }
ArrayValue::~ArrayValue() = default;

std::uint64_t ArrayValue::size() const { return elementsOf(arrayIn(value_)).count; }

Value ArrayValue::getElement(std::uint64_t index) {
  const Internal::Elements elements = elementsOf(arrayIn(value_));
  const Internal::TypeRep& type = *repOf(value_)->type;
  if (index >= elements.count) {
    throw std::out_of_range("Element " + std::to_string(index) +
                            " was asked for in a value of type " + quoted(type) + " with " +
                            std::to_string(elements.count) + " elements.");
  }
  Internal::TypeHandle elementType = elementOf(type);
  const void* element = elements.data + index * elementType->size;
  return Internal::valueOf(Internal::copyToValueRep(std::move(elementType), element));
}

}  // namespace Orvel
