#include <cstdlib>

#include "input/read_double.h"

namespace vtlcmd {

// Not strtold: long double may be wider, and then other texts would pass.
double readDouble(const char* text, const char*& end) {
  char* stop = nullptr;
  const double value = std::strtod(text, &stop);
  end = stop;
  return value;
}

}  // namespace vtlcmd
