#include <algorithm>
#include <string>
#include <vector>

#include "requirement.h"
#include "target.h"
#include "vtlcmd/input/split_string.h"

/// The first byte is the delimiter of the others. Joined with it, the pieces are the text again;
/// there is one more than delimiters, and none holds one.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using vtlcmd::fuzz::require;
  if (size == 0) return 0;
  const char delimiter = static_cast<char>(data[0]);
  const std::string text = vtlcmd::fuzz::textOf(data + 1, size - 1);
  const std::vector<std::string> pieces = vtlcmd::splitString(text, delimiter);
  require(static_cast<std::ptrdiff_t>(pieces.size()) ==
              std::count(text.begin(), text.end(), delimiter) + 1,
          "one piece more than delimiters");
  std::string joined;
  for (const std::string& piece : pieces) {
    require(piece.find(delimiter) == std::string::npos, "no delimiter in a piece");
    if (&piece != &pieces.front()) joined += delimiter;
    joined += piece;
  }
  vtlcmd::fuzz::requireEqual("what is joined again", joined, text);
  return 0;
}
