#include "execution/output_reporting.h"

#include "logging/vtlcmd_logger.h"
#include "orvel_sdk/any_bridge.h"
#include "text/library_text.h"

namespace vtlcmd::runner {

bool reportOutput(const PlugIn::Translation& translation, const std::string& portName,
                  const Orvel::Value& value, OutputForm form, RunContext& context) {
  const Orvel::String name = libraryText(portName);
  OutputValueData data{nullptr, &name, &context};
  if (form == OutputForm::value) return translation.getOutputValue(value, &data);
  if (translation.getOutputAny(Orvel::toAny(value), &data)) return true;
  const std::string type = value.getType().getFullyQualifiedName().c_str();
  context.logger->addMessage(vtlcmdSource, levelWarning,
                             "The plug-in has no report for output port " + inQuotes(portName) +
                                 " [" + type + "] held in an Any.");
  return false;
}

}  // namespace vtlcmd::runner
