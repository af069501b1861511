#include "text/shortest_text.h"

#include <charconv>

namespace vtlcmd::runner {

std::string shortestText(double number) {
  // Long enough for the shortest text of any double.
  char text[32];
  char* const end = text + sizeof text;
  // As the numbers of most frames are; from 100000 on an exponent may be shorter.
  if (number >= 1 && number < 100'000) {
    const int whole = static_cast<int>(number);
    if (whole == number) return {text, std::to_chars(text, end, whole).ptr};
  }
  return {text, std::to_chars(text, end, number).ptr};
}

}  // namespace vtlcmd::runner
