#include <fstream>
#include <memory>
#include <string>

#include "plug_in_host/host.h"
#include "plug_in_host/plug_in.h"
#include "plug_in_host/program.h"
#include "rows/rows.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::bench {
namespace {

struct Setup {
  Setup() { host.inputValues.insert(host.portName, {{}, "12"}); }

  GraphFile graph{R"({"name": "one", "inputs": [{"name": "port", "type": "int"}],
                      "outputs": [{"name": "port", "from": "port"}]})"};
  PlugIn plugIn;
  Host host;
  Orvel::Type type = Orvel::typeOf<std::int32_t>();
  Orvel::Value value = Orvel::makeValue(std::int32_t{12});
  std::ofstream report{"/dev/null"};
};

void runFrames(const Setup& setup, std::size_t frames) {
  runProgram({"run", setup.graph.path(), "-s", "port=12", "-f", "1-" + std::to_string(frames)});
}

/// The two calls of a frame, and its messages printed as the runner prints them.
void runFrame(Setup& setup) {
  Any value;
  setup.plugIn.translation().setInputValue(setup.type, value, &setup.host.input);
  setup.plugIn.translation().getOutputValue(setup.value, &setup.host.output);
  for (const LogMessage& message : setup.host.logger.messages) {
    if (!VtlCmdLogger::levelAdmits(levelProgress, message.level - 1U)) continue;
    setup.report << VtlCmdLogger::makeMessagePrefix(message.source, message.level) << message.text
                 << '\n';
  }
  setup.report.flush();
  setup.host.logger.messages.clear();
}

}  // namespace

/// Each side runs all frames in one call; the runner's start and its first frame are left out.
std::vector<TimedRow> frameRows(const Scale& scale) {
  const auto setup = std::make_shared<Setup>();
  const std::size_t frames = scale.timedFrames;
  TimedRow row;
  row.name = "a frame of the runner, one scalar in and out";
  row.goal = 2.0;
  row.pairs = 61;
  row.elements = frames;
  row.subject = [setup, frames](std::size_t) { runFrames(*setup, frames + 1); };
  row.fixedPart = [setup](std::size_t) { runFrames(*setup, 1); };
  row.limit = [setup, frames](std::size_t) {
    for (std::size_t i = 0; i < frames; ++i) runFrame(*setup);
  };
  return {row};
}

}  // namespace vtlcmd::bench
