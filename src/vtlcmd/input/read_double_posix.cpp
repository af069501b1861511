#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>

#include "vtlcmd/input/read_double.h"

namespace vtlcmd {

// Not strtold: long double may be wider, and then other texts would pass.
double readDouble(const char* text, const char*& end) {
  const int errorBefore = errno;
  char* stop = nullptr;
  const double value = std::strtod(text, &stop);
  end = stop;
  // This C library reports an underflow for some texts that only round up to the smallest normal,
  // others don't. A double holds that value, so they pass everywhere. It also reports the digits of
  // a NaN, as in "nan(99999999999999999999)", that don't fit into an integer.
  if (errno == ERANGE && (std::fabs(value) == DBL_MIN || std::isnan(value))) errno = errorBefore;
  return value;
}

}  // namespace vtlcmd
