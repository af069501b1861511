#pragma once

#include <string>
#include <vector>

#include "text/json.h"

namespace vtlcmd::runner {

/// One number, truth or text of an exact value.
struct ValuePart {
  /// Its place in the value: empty for a value that has no other, else like "x" of a vector,
  /// "size" or "min.y" of an array, "position.size" of an object, "elements.3".
  std::string place;
  /// Belongs to the value.
  const Json* part = nullptr;
};

/// The parts of an exact value as journals have it, in its own order. The elements of arrays only
/// `withElements`.
std::vector<ValuePart> partsOf(const Json& value, bool withElements);

}  // namespace vtlcmd::runner
