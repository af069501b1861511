#include "host/port_host.h"

namespace vtlcmd::validator {

bool PortHost::setInput(const Orvel::Type& type, bool isJobPort, const Any& defaultValue) {
  InputValueData data{nullptr, &name, isJobPort, defaultValue, &context};
  return translation->setInputValue(type, value, &data);
}

bool PortHost::reportAny(const Any& reported) {
  OutputValueData data{nullptr, &name, &context};
  return translation->getOutputAny(reported, &data);
}

bool PortHost::reportValue(const Orvel::Value& reported) {
  OutputValueData data{nullptr, &name, &context};
  return translation->getOutputValue(reported, &data);
}

std::vector<std::string> PortHost::messages() const {
  std::vector<std::string> lines;
  for (const LogMessage& message : logger.messages) {
    const bool known = message.level < VtlCmdLogger::levelNames.size();
    lines.push_back((message.source == vtlcmdSource ? "" : "foreign ") +
                    std::string(known ? VtlCmdLogger::levelNames[message.level] : "unknown") + " " +
                    message.text);
  }
  return lines;
}

std::string PortHost::lastText() const {
  return logger.messages.empty() ? std::string() : logger.messages.back().text;
}

}  // namespace vtlcmd::validator
