#pragma once

#include "text/json.h"

namespace vtlcmd::runner {

/// How far numbers may be apart and still count as equal.
struct Tolerance {
  /// Both finite and at least zero; both zero: to the bit.
  double absolute = 0;
  /// Of the number that is larger in size.
  double relative = 0;

  bool isExact() const noexcept { return absolute == 0 && relative == 0; }
};

/// Whether two numbers, truths or texts of exact values are equal. "nan" and infinities stand there
/// as texts and are equal to themselves only.
bool areEqual(const Json& a, const Json& b, const Tolerance& tolerance);

}  // namespace vtlcmd::runner
