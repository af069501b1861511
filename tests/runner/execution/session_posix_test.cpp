#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <string>

#include "execution/session.h"
#include "platform/interrupt.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

/// Is interrupted twice while it reports the first output.
class InterruptedTranslation final : public PlugIn::Translation {
 public:
  InterruptedTranslation() : TypeTranslationPreview(libraryText("interrupted")) {}

  void destroy() override {}
  void getSupportedTypeNames(Orvel::Array<Orvel::String>&) const override {}
  bool setInputValue(const Orvel::Type&, Any&, InputValueData*) const override { return false; }
  bool getOutputAny(const Any&, OutputValueData*) const override { return false; }

  bool getOutputValue(const Orvel::Value&, OutputValueData* data) const override {
    static_cast<void>(std::raise(SIGINT));
    static_cast<void>(std::raise(SIGINT));
    std::cerr << "reported " << standardText(*data->portName) << '\n';
    return true;
  }
};

/// Ends the process with 0 when the session's frame is one that was abandoned.
[[noreturn]] void runInterrupted() {
  rememberInterrupts();
  const Graph graph = parseGraph(
      R"({"nodes": [{"name": "k", "op": "constant", "type": "int", "value": 1}],
          "outputs": [{"name": "first", "from": "k"}, {"name": "second", "from": "k"}]})");
  RunSettings settings;
  settings.frames.append(1, 1, 1);
  settings.recordFrames = true;
  VtlCmdLogger logger(10);
  const InterruptedTranslation translation;
  const FrameRecord record = Session(graph, translation, settings, logger).run(0);
  const bool isAbandoned = record.entry.interrupted && !record.entry.outputsReported &&
                           record.failure == Failure::transient;
  std::_Exit(isAbandoned ? 0 : 1);
}

TEST(SessionDeathTest, ASecondInterruptEndsTheReportOfOutputs) {
  EXPECT_EXIT(runInterrupted(), testing::ExitedWithCode(0), "^reported first\n$");
}

}  // namespace
}  // namespace vtlcmd::runner
