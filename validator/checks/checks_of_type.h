#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "checks/check.h"

namespace vtlcmd::validator {

/// A check that is made for many types.
struct CheckOfType {
  /// What the checks' names begin with.
  std::string_view subject;
  /// The type's name comes in where `{}` stands.
  std::string_view promise;
  std::function<void(Session&)> run;
};

/// Appends the checks of the type with that name, in their order.
void addChecksOfType(CheckList& checks, const std::string& typeName,
                     std::initializer_list<CheckOfType> ofType);

}  // namespace vtlcmd::validator
