#include "vtlcmd/stand_in/type_factory.h"

#include <stdexcept>
#include <string>
#include <string_view>

#include "orvel_core/owned_block.h"
#include "orvel_sdk/representation.h"
#include "orvel_sdk/stored_type_reps.h"
#include "orvel_sdk/struct_storage.h"
#include "vtlcmd/stand_in/make_string.h"

namespace Orvel {

using Internal::repOf;
using Internal::TypeHandle;
using Internal::TypeRep;
using Internal::viewOf;

Type typeNamed(StringView name) {
  static constexpr std::string_view arrayStart = "array<";
  std::string_view rest = viewOf(name);
  std::uint32_t depth = 0;
  while (rest.starts_with(arrayStart) && rest.ends_with('>')) {
    rest.remove_prefix(arrayStart.size());
    rest.remove_suffix(1);
    ++depth;
  }
  for (const TypeHandle& stored : Internal::storedTypeReps()) {
    if (viewOf(stored->name) == rest) return Internal::storedType({stored->storedIndex, depth});
  }
  throw std::invalid_argument("There is no type named " + Internal::quoted(viewOf(name)) + ".");
}

std::vector<String> knownTypeNames() {
  std::vector<String> names;
  for (const TypeHandle& stored : Internal::storedTypeReps()) names.push_back(stored->name);
  return names;
}

Type makeArrayType(const Type& element) {
  return Internal::typeOf(Internal::arrayOf(repOf(element)));
}

Type makeStructType(StringView name, std::span<const MemberSpec> members) {
  MutablePtr<TypeRep> type =
      Internal::makeOwnedMutable<TypeRep>(TypeRep{.name = makeString(name),
                                                  .kind = Internal::structKind,
                                                  .size = 0,
                                                  .alignment = 1,
                                                  .operations = &Internal::structOperations});
  for (const MemberSpec& member : members) {
    for (const StructType::Member& earlier : type->members) {
      if (earlier.getName() == member.name) {
        throw std::invalid_argument("The struct " + Internal::quoted(*type) +
                                    " has two members named " +
                                    Internal::quoted(viewOf(member.name)) + ".");
      }
    }
    type->members.push_back(
        Internal::Representation<StructType::Member>::make(member.name, member.type));
  }
  Internal::layOutMembers(*type);
  if (type->structLevels > Internal::maximumStructLevels) {
    throw std::invalid_argument("The struct " + Internal::quoted(*type) + " holds more than " +
                                std::to_string(Internal::maximumStructLevels - 1) +
                                " structs inside one another.");
  }
  return Internal::typeOf(TypeHandle(Ptr<TypeRep>(std::move(type))));
}

bool equalTypes(const Type& a, const Type& b) noexcept {
  const TypeRep& left = *repOf(a);
  const TypeRep& right = *repOf(b);
  return left.depth == right.depth && &Internal::innermostOf(left) == &Internal::innermostOf(right);
}

const Type& declaredType(const StructType::Member& member) noexcept {
  return Internal::typeOf(member);
}

Type Internal::storedType(StoredTypeId id) {
  const TypeHandle& element = storedTypeReps()[id.index];
  return typeOf(id.depth == 0 ? element : arrayOf(element, id.depth));
}

}  // namespace Orvel
