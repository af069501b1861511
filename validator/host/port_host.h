#pragma once

#include <string>
#include <vector>

#include "host/session.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::validator {

/// The records of one run with one port, called `port`, and an object to call.
class PortHost {
 public:
  explicit PortHost(Session& session, std::uint32_t printLimit = 10)
      : logger(printLimit), translation(session.plugIn()) {}

  void giveText(const char* text) { giveText(Orvel::String(text)); }
  void giveText(const Orvel::String& text) { inputValues.insert(name, {{}, text}); }
  void giveJobText(const char* text) { jobValues.insert(name, {{}, text}); }

  bool setInput(const Orvel::Type& type, bool isJobPort = false, const Any& defaultValue = {});
  bool reportAny(const Any& reported);
  bool reportValue(const Orvel::Value& reported);

  /// Every message so far as "level text", with "foreign " in front when it isn't this side's.
  std::vector<std::string> messages() const;
  /// The text of the last message; empty when there is none.
  std::string lastText() const;

  Orvel::String name = "port";
  Any value;
  VtlCmdLogger logger;
  PortValueMap inputValues;
  PortValueMap jobValues;
  RunContext context{&inputValues, &jobValues, 0, 0, 1, {}, {}, &logger};
  Translator translation;
};

}  // namespace vtlcmd::validator
