#include "checks/outcome.h"

namespace vtlcmd::validator {
namespace {

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : " | ") + line;
  return lines.empty() ? "(none)" : text;
}

}  // namespace

void failFor(std::string_view what) { throw Failed(std::string("not so: ").append(what)); }

void expectText(std::string_view what, std::string_view found, std::string_view wanted) {
  if (found == wanted) return;
  throw Failed(std::string(what)
                   .append(": found \"")
                   .append(found)
                   .append("\", wanted \"")
                   .append(wanted)
                   .append("\""));
}

void expectLines(std::string_view what, const std::vector<std::string>& found,
                 const std::vector<std::string>& wanted) {
  if (found == wanted) return;
  throw Failed(std::string(what)
                   .append(": found ")
                   .append(joined(found))
                   .append("; wanted ")
                   .append(joined(wanted)));
}

}  // namespace vtlcmd::validator
