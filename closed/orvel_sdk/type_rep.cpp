#include "orvel_sdk/type_rep.h"

#include "orvel_core/owned_block.h"
#include "orvel_sdk/array_storage.h"

namespace Orvel::Internal {
namespace {

TypeHandle arrayType(const TypeHandle& innermost, std::uint32_t depth) {
  return makeOwned<TypeRep>(TypeRep{.name = innermost->name,
                                    .kind = TypeKind::array,
                                    .size = sizeof(ArrayPtr),
                                    .alignment = alignof(ArrayPtr),
                                    .operations = &arrayOperations,
                                    .innermost = innermost,
                                    .depth = depth});
}

}  // namespace

bool isStored(const TypeRep& type, StoredTypeId id) noexcept {
  return type.depth == id.depth && innermostOf(type).storedIndex == id.index;
}

TypeHandle arrayOf(const TypeHandle& element, std::uint32_t levels) {
  return arrayType(element->depth == 0 ? element : element->innermost, element->depth + levels);
}

TypeHandle elementOf(const TypeRep& array) {
  return array.depth == 1 ? array.innermost : arrayType(array.innermost, array.depth - 1);
}

std::string nameOf(const TypeRep& type) {
  static constexpr std::string_view arrayStart = "array<";
  const std::string_view innermost = viewOf(type.name);
  std::string text;
  text.reserve(type.depth * (arrayStart.size() + 1) + innermost.size());
  for (std::uint32_t level = 0; level < type.depth; ++level) text += arrayStart;
  text += innermost;
  text.append(type.depth, '>');
  return text;
}

std::string quoted(const TypeRep& type) { return quoted(nameOf(type)); }

std::string quoted(std::string_view text) { return std::string(1, '\'').append(text) += '\''; }

}  // namespace Orvel::Internal
