#include "execution/output_reporting.h"

#include <string>

#include "text/library_text.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/stand_in/any_bridge.h"

namespace vtlcmd::runner {

bool reportOutput(const PlugIn::Translation& translation, const Orvel::String& portName,
                  const Orvel::Value& value, OutputForm form, RunContext& context) {
  OutputValueData data{nullptr, &portName, &context};
  if (form == OutputForm::value) return translation.getOutputValue(value, &data);
  if (translation.getOutputAny(Orvel::toAny(value), &data)) return true;
  const std::string type = value.getType().getFullyQualifiedName().c_str();
  context.logger->addMessage(vtlcmdSource, levelWarning,
                             "The plug-in has no report for output port " +
                                 inQuotes(standardText(portName)) + " [" + type +
                                 "] held in an Any.");
  return false;
}

}  // namespace vtlcmd::runner
