#include "checks/outcome.h"

namespace vtlcmd::validator {
namespace {

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : " | ") + line;
  return lines.empty() ? "(none)" : text;
}

}  // namespace

void expectText(const std::string& what, const std::string& found, const std::string& wanted) {
  if (found != wanted) throw Failed(what + ": found \"" + found + "\", wanted \"" + wanted + '"');
}

void expectLines(const std::string& what, const std::vector<std::string>& found,
                 const std::vector<std::string>& wanted) {
  if (found != wanted)
    throw Failed(what + ": found " + joined(found) + "; wanted " + joined(wanted));
}

}  // namespace vtlcmd::validator
