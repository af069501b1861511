#include "vtlcmd/input/input_port.h"

#include <cstddef>
#include <string_view>

#include "vtlcmd/text/joined.h"

namespace vtlcmd {
namespace {

/// Enough for a line's own words and the text of a usual value.
constexpr std::size_t usualRoom = 120;

const char* wordOf(const InputPort& port) { return port.isJobPort ? "Job" : "input"; }

}  // namespace

PortPrefix::operator std::string() const {
  // The plain port's word has a capital here and in no other line.
  return joined(
      {port.isJobPort ? "Job" : "Input", " port '", port.name, "' (", port.typeName, "): "});
}

void InputPort::addNoValueLine(VtlCmdLogger& logger) const {
  logger.addMessage(vtlcmdSource, levelVerbose,
                    joined({"No value was provided to vtlcmd for ", wordOf(*this), " port '", name,
                            "' (", typeName, "). A default value will be used."}));
}

TextBuilder InputPort::beginValueLine() const {
  TextBuilder line(usualRoom + std::string_view(name).size() + std::string_view(typeName).size());
  line << "Set " << wordOf(*this) << " port '" << name << "': (" << typeName << ") ";
  return line;
}

}  // namespace vtlcmd
