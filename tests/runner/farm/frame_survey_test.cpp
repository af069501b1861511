#include "farm/frame_survey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "journal/journal_lines.h"
#include "journal/journal_reader.h"
#include "runner/support/temporary_folder.h"

namespace vtlcmd::runner {
namespace {

using testing::ElementsAre;

/// A folder whose journals are made of the lines that a test names.
class FrameSurveyTest : public testing::Test {
 protected:
  FrameSurveyTest() { std::filesystem::create_directories(folder_.journals()); }

  static std::string run() { return journalText({line_kinds::run, "{}", "{}"}); }
  static std::string start(int index) {
    return journalText({line_kinds::start, "{\"index\":" + std::to_string(index) + "}", "{}"});
  }
  static std::string frame(int index, const std::string& failure) {
    return journalText({line_kinds::frame,
                        "{\"index\":" + std::to_string(index) +
                            R"(,"frame":"1","interrupted":false,"failure":")" + failure +
                            R"(","graph_errors":0,"graph_warnings":0,"outputs":{"index":99}})",
                        "{}"});
  }
  static std::string end() { return journalText({line_kinds::end, "{}", "{}"}); }

  void write(const std::string& name, const std::string& lines) const {
    std::ofstream(folder_.journals() / name, std::ios::binary) << lines;
  }

  TemporaryFolder place_;
  FarmFolder folder_{place_ / "farm"};
};

TEST_F(FrameSurveyTest, TellsEachFrame) {
  write("1-1.journal", run() + start(0) + frame(0, "none") + start(1) + frame(1, "permanent") +
                           start(2) + frame(2, "transient") + start(3));
  EXPECT_THAT(surveyFrames(folder_, 5),
              ElementsAre(FrameState::done, FrameState::failed, FrameState::failedForNow,
                          FrameState::started, FrameState::missing));
}

TEST_F(FrameSurveyTest, KnowsThatAFinishedRunHasNothingOpen) {
  write("1-1.journal", run() + start(0) + end());
  EXPECT_THAT(surveyFrames(folder_, 1), ElementsAre(FrameState::missing));
}

TEST_F(FrameSurveyTest, PrefersSuccessesThenLaterFailures) {
  write("1-1.journal", run() + frame(0, "none") + frame(1, "permanent") + frame(2, "transient"));
  write("2-1.journal", run() + frame(0, "permanent") + frame(1, "transient") + frame(2, "none"));
  write("10-1.journal", run() + start(0) + start(1) + start(2));
  EXPECT_THAT(surveyFrames(folder_, 3),
              ElementsAre(FrameState::done, FrameState::failedForNow, FrameState::done));
}

TEST_F(FrameSurveyTest, RefusesAFrameThatTheJobHasNot) {
  write("1-1.journal", run() + frame(3, "none"));
  EXPECT_THROW(surveyFrames(folder_, 3), JournalError);
}

}  // namespace
}  // namespace vtlcmd::runner
