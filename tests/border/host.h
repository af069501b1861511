#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "border/loaded_plug_in.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::testing {

/// Of the names that the plug-in tells.
inline constexpr std::size_t supportedCount =
    std::tuple_size_v<decltype(registeredTypes)> + std::tuple_size_v<decltype(inputOnlyTypes)>;

/// The records of one run with one port.
struct Port {
  Orvel::String name = "port";
  PortValueMap inputValues;
  PortValueMap jobValues;
  VtlCmdLogger logger{10};
  RunContext context{&inputValues, &jobValues, 0, 0, 1, {}, {}, &logger};
  InputValueData input{nullptr, &name, false, {}, &context};
  OutputValueData output{nullptr, &name, &context};
};

/// A port that holds something before the plug-in is called: a value of another call, and a
/// message.
class Host : public Port {
 public:
  static constexpr const char* oldText = "what the port held before all this";
  static constexpr std::size_t oldMessages = 1;

  Host() {
    name = "a port of a long name";
    context.time = 0.5;
    context.frame = 12;
    context.frameLength = 1.0 / 24;
    context.sceneFile = L"/a/folder/of/scenes/scene.file";
    context.secondaryPath = L"/another/folder/second.file";
    logger.addMessage(vantrelSource, levelVerbose, "before all this");
  }

  bool holdsOldValue() const {
    const auto* text = anyCast<Orvel::String>(&value);
    return text != nullptr && *text == oldText;
  }

  Any value = makeAny(Orvel::String(oldText));
};

/// What a logger has collected, to be held against that of an undisturbed call.
struct Collected {
  explicit Collected(const VtlCmdLogger& logger) {
    for (const LogMessage& message : logger.messages) {
      messages.push_back(std::to_string(message.source) + ' ' + std::to_string(message.level) +
                         ' ' + message.text);
    }
    for (const auto& [port, output] : logger.fallbackEntry.outputs) {
      outputs[port] =
          output.typeName + ' ' + output.valueText + (output.valueShown ? " shown" : "");
    }
  }

  /// Whether this is what the other one is made of, up to some point of time: a record comes before
  /// its message.
  bool isBeginningOf(const Collected& whole) const {
    if (messages.size() > whole.messages.size()) return false;
    for (std::size_t i = 0; i < messages.size(); ++i) {
      if (messages[i] != whole.messages[i]) return false;
    }
    if (outputs.empty() && !whole.outputs.empty()) return messages.size() == Host::oldMessages;
    return outputs == whole.outputs;
  }

  bool operator==(const Collected&) const = default;

  std::vector<std::string> messages;
  std::map<std::string, std::string> outputs;
};

}  // namespace vtlcmd::testing
