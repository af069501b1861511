#include "text/shortest_text.h"

#include <charconv>

namespace vtlcmd::runner {

std::string shortestText(double number) {
  // Long enough for the shortest text of any double.
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

}  // namespace vtlcmd::runner
