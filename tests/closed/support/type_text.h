#pragma once

#include <string>
#include <vector>

#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace Orvel::testing {

inline std::string textOf(const String& string) {
  const StringView view = string;
  return {view.data, view.size};
}

inline std::string nameOf(const Type& type) { return textOf(type.getFullyQualifiedName()); }

/// Each member as "name: type", in declared order.
inline std::vector<std::string> membersOf(const Type& type) {
  const StructType structType(type);
  std::vector<std::string> members;
  const auto end = structType.end();
  for (auto member = structType.begin(); member != end; member++) {
    members.push_back(textOf(member->getName()) + ": " +
                      nameOf(declaredType(*member.operator->())));
  }
  return members;
}

}  // namespace Orvel::testing
