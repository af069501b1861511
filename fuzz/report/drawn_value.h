#pragma once

#include <cstddef>
#include <string>

#include "input.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::fuzz {

/// A value made of the fuzzer's bytes, and how a report has to show it.
struct DrawnValue {
  Orvel::Value value;
  /// The type's name, as a report calls a value of it.
  std::string typeName;
  /// Found by the tag of an Any, which lists arrays under their elements' own name.
  std::string textInAny;
  /// Found by name, which lists them under the name of the next array type.
  std::string textInValue;
};

/// A value of one of the registered types at a number of array levels, shown with at most `limit`
/// elements at each; the limit isn't 0.
DrawnValue drawValue(Input& input, std::size_t levels, std::size_t limit);

}  // namespace vtlcmd::fuzz
