#include <functional>
#include <memory>
#include <string>

#include "plug_in_host/host.h"
#include "plug_in_host/plug_in.h"
#include "plug_in_host/program.h"
#include "rows/rows.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::bench {
namespace {

std::string portName(std::size_t number) { return "port" + std::to_string(number); }

/// One run of the plug-in with so many ports, each an input and an output.
void runPorts(const PlugIn& plugIn, std::size_t count) {
  Host host;
  const Orvel::Type type = Orvel::typeOf<std::int32_t>();
  const Orvel::Value value = Orvel::makeValue(std::int32_t{12});
  for (std::size_t i = 0; i < count; ++i) {
    host.inputValues.insert(portName(i).c_str(), {{}, "12"});
  }
  for (std::size_t i = 0; i < count; ++i) {
    Any input;
    host.portName = portName(i).c_str();
    plugIn.translation().setInputValue(type, input, &host.input);
    plugIn.translation().getOutputValue(value, &host.output);
  }
}

/// So many messages in one logger.
void addMessages(const PlugIn& plugIn, std::size_t count) {
  Host host;
  host.inputValues.insert(host.portName, {{}, "12"});
  const Orvel::Type type = Orvel::typeOf<std::int32_t>();
  Any value;
  for (std::size_t i = 0; i < count; ++i) {
    plugIn.translation().setInputValue(type, value, &host.input);
  }
}

std::string graphOfPorts(std::size_t count) {
  std::string inputs;
  std::string outputs;
  for (std::size_t i = 0; i < count; ++i) {
    const char* separator = i == 0 ? "" : ",\n";
    const std::string name = '"' + portName(i) + '"';
    inputs += separator + ("{\"name\": " + name) + R"(, "type": "int", "default": 12})";
    outputs += separator + ("{\"name\": " + name) + ", \"from\": " + name + "}";
  }
  return "{\"name\": \"ports\", \"inputs\": [" + inputs + "],\n\"outputs\": [" + outputs + "]}";
}

/// The work at the last three doublings up to the largest size.
std::vector<TimedRow> doublings(const std::string& what, std::size_t largest, std::size_t pairs,
                                const std::function<std::function<void()>(std::size_t)>& workOf) {
  std::vector<TimedRow> rows;
  for (std::size_t size = largest / 4; size <= largest; size *= 2) {
    TimedRow row;
    row.name = what + ", " + std::to_string(size / 2) + " to " + std::to_string(size);
    row.goal = 2.3;
    row.pairs = pairs;
    row.subject = [work = workOf(size)](std::size_t) { work(); };
    row.limit = [work = workOf(size / 2)](std::size_t) { work(); };
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

std::vector<TimedRow> growthRows(const Scale& scale) {
  const auto plugIn = std::make_shared<PlugIn>();
  const auto oneFrameGraph = std::make_shared<GraphFile>(graphOfPorts(1));
  std::vector<TimedRow> rows;
  const auto add = [&rows](std::vector<TimedRow> more) {
    for (TimedRow& row : more) rows.push_back(std::move(row));
  };
  add(doublings("ports in one run of the plug-in", scale.ports, 7,
                [&](std::size_t size) { return [plugIn, size] { runPorts(*plugIn, size); }; }));
  add(doublings("ports in one run of the runner", scale.ports, 1, [&](std::size_t size) {
    const auto graph = std::make_shared<GraphFile>(graphOfPorts(size));
    return [graph] { runProgram({"run", graph->path()}); };
  }));
  add(doublings("messages", scale.messages, 7,
                [&](std::size_t size) { return [plugIn, size] { addMessages(*plugIn, size); }; }));
  add(doublings("frames of the runner", scale.frames, 1, [&](std::size_t size) {
    return [oneFrameGraph, size] {
      runProgram({"run", oneFrameGraph->path(), "-f", "1-" + std::to_string(size)});
    };
  }));
  return rows;
}

}  // namespace vtlcmd::bench
