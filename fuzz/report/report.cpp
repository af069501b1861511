#include <string>

#include "report/drawn_value.h"
#include "requirement.h"
#include "support/test_host.h"
#include "target.h"
#include "vtlcmd/stand_in/any_bridge.h"

namespace {

using vtlcmd::fuzz::requireEqual;

/// An Any has a reporter for a single value and three array levels.
constexpr std::size_t mostLevelsInAny = 3;

/// Adding two operands that are no numbers may give either, so the sign of an average is open.
std::string withoutNanSigns(std::string text) {
  for (std::size_t at = 0; (at = text.find("-nan", at)) != std::string::npos;) text.erase(at, 1);
  return text;
}

void requireReport(const vtlcmd::VtlCmdLogger& logger, const std::string& typeName,
                   const std::string& text) {
  const std::string shown =
      logger.printLimit == 0 ? " output suppressed)" : ") " + withoutNanSigns(text);
  requireEqual("the message", withoutNanSigns(logger.messages.back().text),
               "Output port 'p': (" + typeName + shown);
  const vtlcmd::OutputReport& report = logger.fallbackEntry.outputs.at("p");
  requireEqual("the record's type", report.typeName, typeName);
  requireEqual("the record's text", withoutNanSigns(report.valueText),
               report.valueShown ? withoutNanSigns(text) : "");
  vtlcmd::fuzz::require(report.valueShown == (logger.printLimit != 0), "shown unless suppressed");
}

}  // namespace

/// The report of a value of any type, nesting and limit, against a second writer of its text.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vtlcmd::fuzz::Input input(data, size);
  const std::size_t levels = input.below(mostLevelsInAny + 2);
  const std::size_t limit = input.below(8);
  const vtlcmd::fuzz::DrawnValue drawn = vtlcmd::fuzz::drawValue(input, levels, limit);

  vtlcmd::testing::TestHost host(static_cast<std::uint32_t>(limit));
  vtlcmd::fuzz::require(host.getValue(drawn.value, "p"), "a value is reported");
  requireReport(host.logger, drawn.typeName, drawn.textInValue);
  const bool isTagged = levels <= mostLevelsInAny;
  vtlcmd::fuzz::require(host.getAny(Orvel::toAny(drawn.value), "p") == isTagged,
                        "an Any is reported to three levels");
  if (isTagged) requireReport(host.logger, drawn.typeName, drawn.textInAny);
  return 0;
}
