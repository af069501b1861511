#pragma once

#include <string>
#include <vector>

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"
#include "vtlcmd/translation/vtlcmd_type_translation.h"

namespace vtlcmd::testing {

/// A host in the smallest form: the records of one run, and a translation object to call.
class TestHost {
 public:
  explicit TestHost(std::uint32_t printLimit = 10) : logger(printLimit) {}

  void giveText(const char* port, const char* text) { inputValues.insert(port, {{}, text}); }
  void giveJobText(const char* port, const char* text) { jobValues.insert(port, {{}, text}); }

  bool setInput(const Orvel::Type& type, Any& value, const char* port, bool isJobPort = false,
                const Any& defaultValue = {}) {
    const Orvel::String name = port;
    InputValueData data{nullptr, &name, isJobPort, defaultValue, &context};
    return translation.setInputValue(type, value, &data);
  }

  bool getAny(const Any& value, const char* port) {
    const Orvel::String name = port;
    OutputValueData data{nullptr, &name, &context};
    return translation.getOutputAny(value, &data);
  }

  bool getValue(const Orvel::Value& value, const char* port) {
    const Orvel::String name = port;
    OutputValueData data{nullptr, &name, &context};
    return translation.getOutputValue(value, &data);
  }

  /// Every message so far as "level text"; all must come from this side.
  std::vector<std::string> messages() const { return messagesOf(logger); }

  static std::vector<std::string> messagesOf(const VtlCmdLogger& logger) {
    std::vector<std::string> lines;
    for (const LogMessage& message : logger.messages) {
      lines.push_back((message.source == vtlcmdSource ? "" : "foreign ") +
                      std::string(VtlCmdLogger::levelNames[message.level]) + " " + message.text);
    }
    return lines;
  }

  VtlCmdLogger logger;
  PortValueMap inputValues;
  PortValueMap jobValues;
  RunContext context{&inputValues, &jobValues, 0, 0, 1, {}, {}, &logger};
  VtlCmdTypeTranslation translation;
};

}  // namespace vtlcmd::testing
