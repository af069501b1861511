#include "execution/frame_printer.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace vtlcmd::runner {
namespace {

class FramePrinterTest : public testing::Test {
 protected:
  /// Prints what the logger has taken since, as a frame's.
  void endFrame(FramePrinter& printer, const std::string& frame) {
    printer.print(frame, logger_.messages);
    logger_.messages.clear();
  }

  FramePrinter printerOfFrames(bool hasSeveralFrames) {
    return {logger_, levelProgress, {{report_}, {problems_}}, progress_, hasSeveralFrames};
  }

  std::ostringstream report_;
  std::ostringstream problems_;
  VtlCmdLogger logger_{10};
  Progress progress_{problems_, ProgressForm::none, 1};
};

TEST_F(FramePrinterTest, AProblemOfSeveralFramesIsToldOnceAndCounted) {
  FramePrinter printer = printerOfFrames(true);
  for (const char* frame : {"1", "2", "3"}) {
    logger_.addMessage(vtlcmdSource, levelProgress, "output");
    logger_.addVantrelMessage(std::int32_t{0}, "the node fails");
    logger_.addVantrelMessage(std::int32_t{1}, std::string("warning of ") + frame);
    endFrame(printer, frame);
  }
  printer.printCounts();
  EXPECT_EQ(report_.str(),
            "[vtlcmd]            Frame 1:\n[vtlcmd]            output\n"
            "[vtlcmd]            Frame 2:\n[vtlcmd]            output\n"
            "[vtlcmd]            Frame 3:\n[vtlcmd]            output\n");
  EXPECT_EQ(problems_.str(),
            "[vtlcmd]            Frame 1:\n[Vantrel] Error:    the node fails\n"
            "[Vantrel] Warning:  warning of 1\n"
            "[vtlcmd]            Frame 2:\n[Vantrel] Warning:  warning of 2\n"
            "[vtlcmd]            Frame 3:\n[Vantrel] Warning:  warning of 3\n"
            "[Vantrel] Error:    In 3 frames: the node fails\n");
}

TEST_F(FramePrinterTest, FramesAreCountedAndNotTexts) {
  FramePrinter printer = printerOfFrames(true);
  for (const char* frame : {"1", "2"}) {
    logger_.addMessage(vtlcmdSource, levelWarning, "twice");
    logger_.addMessage(vtlcmdSource, levelWarning, "twice");
    endFrame(printer, frame);
  }
  printer.printCounts();
  EXPECT_EQ(problems_.str(),
            "[vtlcmd]            Frame 1:\n[vtlcmd]  Warning:  twice\n[vtlcmd]  Warning:  twice\n"
            "[vtlcmd]  Warning:  In 2 frames: twice\n");
}

TEST_F(FramePrinterTest, AProblemOfOneFrameIsNotCounted) {
  FramePrinter printer = printerOfFrames(true);
  logger_.addMessage(vtlcmdSource, levelError, "once");
  endFrame(printer, "1");
  endFrame(printer, "2");
  printer.printCounts();
  EXPECT_EQ(problems_.str(), "[vtlcmd]            Frame 1:\n[vtlcmd]  Error:    once\n");
}

TEST_F(FramePrinterTest, TheOnlyFrameHasNoHead) {
  FramePrinter printer = printerOfFrames(false);
  logger_.addMessage(vtlcmdSource, levelError, "the problem");
  endFrame(printer, "1");
  printer.printCounts();
  EXPECT_EQ(problems_.str(), "[vtlcmd]  Error:    the problem\n");
}

}  // namespace
}  // namespace vtlcmd::runner
