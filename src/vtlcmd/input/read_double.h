#pragma once

namespace vtlcmd {

/// `strtod`: reads the number that a terminated text begins with, behind white space. `end` is set
/// behind the number, or to `text` when there is none. Sets `errno` to ERANGE for what a double
/// can't hold, and leaves it alone otherwise. The decimal point is that of the process's locale.
double readDouble(const char* text, const char*& end);

}  // namespace vtlcmd
