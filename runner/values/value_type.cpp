#include "values/value_type.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "text/library_text.h"
#include "text/near_misses.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::runner {
namespace {

constexpr std::string_view arrayOpening = "array<";

/// A report walks an array level by level, so a type from a file is kept within the stack.
constexpr std::uint32_t maximumDepth = 256;

std::vector<std::string> knownElements() {
  std::vector<std::string> names;
  for (const Orvel::String& name : Orvel::knownTypeNames()) names.emplace_back(name.c_str());
  return names;
}

}  // namespace

ValueType parseValueType(std::string_view text) {
  std::string_view element = text;
  std::uint32_t depth = 0;
  while (element.starts_with(arrayOpening) && element.ends_with('>')) {
    element = element.substr(arrayOpening.size(), element.size() - arrayOpening.size() - 1);
    if (++depth > maximumDepth) {
      throw std::invalid_argument("a type has at most " + std::to_string(maximumDepth) +
                                  " array levels");
    }
  }
  const std::vector<std::string> names = knownElements();
  if (std::find(names.begin(), names.end(), element) == names.end()) {
    throw std::invalid_argument(inQuotes(text) + " is no type" + nearMissHint(element, names));
  }
  return {std::string(element), depth};
}

std::string nameOf(const ValueType& type) {
  std::string name;
  for (std::uint32_t level = 0; level < type.depth; ++level) name += arrayOpening;
  return name + type.element + std::string(type.depth, '>');
}

Orvel::Type libraryTypeOf(const ValueType& type) { return Orvel::typeNamed(viewOf(nameOf(type))); }

}  // namespace vtlcmd::runner
