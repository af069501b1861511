#include "execution/progress.h"

#include <gtest/gtest.h>
#include <sstream>

namespace vtlcmd::runner {
namespace {

using namespace std::chrono_literals;

/// A run of frames that last as long as the test says.
class ProgressTest : public testing::Test {
 protected:
  /// What is printed for `count` frames of the same duration; `inFrame` is called in each.
  template <typename InFrame>
  std::string play(ProgressForm form, std::size_t count, std::chrono::milliseconds duration,
                   InFrame inFrame) {
    std::ostringstream stream;
    {
      Progress progress(stream, form, count, [this] { return now_; });
      for (std::size_t i = 0; i < count; ++i) {
        progress.beginFrame(i, static_cast<double>(i + 101));
        now_ += duration;
        inFrame(progress, stream);
      }
    }
    return stream.str();
  }

  std::string play(ProgressForm form, std::size_t count, std::chrono::milliseconds duration) {
    return play(form, count, duration, [](Progress&, std::ostream&) {});
  }

  Progress::Time now_;
};

TEST_F(ProgressTest, FewLongFrames) {
  EXPECT_EQ(play(ProgressForm::terminalLine, 3, 90s),
            "frame 101 (1 of 3), 0 %"
            "\r\x1b[Kframe 102 (2 of 3), 33 %, 90.0 s/frame, 3:00 left"
            "\r\x1b[Kframe 103 (3 of 3), 66 %, 90.0 s/frame, 1:30 left"
            "\r\x1b[K");
}

TEST_F(ProgressTest, ManyShortFramesRenewTheLineTwiceASecond) {
  EXPECT_EQ(play(ProgressForm::terminalLine, 1200, 1ms),
            "frame 101 (1 of 1200), 0 %"
            "\r\x1b[Kframe 601 (501 of 1200), 41 %, 1000.0 frames/s, 0:01 left"
            "\r\x1b[Kframe 1101 (1001 of 1200), 83 %, 1000.0 frames/s, 0:00 left"
            "\r\x1b[K");
}

TEST_F(ProgressTest, TheLineStaysBetweenFramesBelowWhatIsPrinted) {
  const auto print = [](Progress& progress, std::ostream& stream) {
    progress.hide();
    stream << "text\n";
    progress.show();
  };
  EXPECT_EQ(play(ProgressForm::terminalLine, 2, 100ms, print),
            "frame 101 (1 of 2), 0 %"
            "\r\x1b[Ktext\nframe 101 (1 of 2), 0 %"
            "\r\x1b[Ktext\nframe 101 (1 of 2), 0 %"
            "\r\x1b[K");
}

TEST_F(ProgressTest, PlainLinesEveryTenSeconds) {
  const auto print = [](Progress& progress, std::ostream& stream) {
    progress.hide();
    stream << "";
    progress.show();
  };
  EXPECT_EQ(play(ProgressForm::plainLines, 8, 4s, print),
            "frame 101 (1 of 8), 0 %\n"
            "frame 104 (4 of 8), 37 %, 4.0 s/frame, 0:20 left\n"
            "frame 107 (7 of 8), 75 %, 4.0 s/frame, 0:08 left\n");
}

TEST_F(ProgressTest, TheTimeLeftCountsDownInALongFrame) {
  const auto work = [this](Progress& progress, std::ostream&) {
    for (int i = 0; i < 2; ++i) {
      now_ += 40s;
      progress.renew();
    }
  };
  EXPECT_EQ(play(ProgressForm::plainLines, 3, 0s, work),
            "frame 101 (1 of 3), 0 %\n"
            "frame 101 (1 of 3), 0 %\n"
            "frame 101 (1 of 3), 0 %\n"
            "frame 102 (2 of 3), 33 %, 80.0 s/frame, 2:00 left\n"
            "frame 102 (2 of 3), 33 %, 80.0 s/frame, 1:20 left\n"
            "frame 103 (3 of 3), 66 %, 80.0 s/frame, 0:40 left\n"
            "frame 103 (3 of 3), 66 %, 80.0 s/frame, 0:00 left\n");
}

TEST_F(ProgressTest, TheLineOfALongFrameIsRenewedUnlessOthersPrint) {
  const auto work = [this](Progress& progress, std::ostream& stream) {
    now_ += 1s;
    progress.renew();
    progress.hide();
    stream << "text\n";
    now_ += 1s;
    progress.renew();
    progress.show();
  };
  EXPECT_EQ(play(ProgressForm::terminalLine, 1, 0s, work),
            "frame 101 (1 of 1), 0 %"
            "\r\x1b[Kframe 101 (1 of 1), 0 %"
            "\r\x1b[Ktext\nframe 101 (1 of 1), 0 %"
            "\r\x1b[K");
}

TEST_F(ProgressTest, LongTimesLeft) {
  EXPECT_EQ(play(ProgressForm::plainLines, 2, 3661s),
            "frame 101 (1 of 2), 0 %\n"
            "frame 102 (2 of 2), 50 %, 3661.0 s/frame, 1:01:01 left\n");
  EXPECT_EQ(play(ProgressForm::plainLines, 2, 9000h),
            "frame 101 (1 of 2), 0 %\n"
            "frame 102 (2 of 2), 50 %, 32400000.0 s/frame, over a year left\n");
}

TEST_F(ProgressTest, NothingUnlessWanted) { EXPECT_EQ(play(ProgressForm::none, 3, 90s), ""); }

}  // namespace
}  // namespace vtlcmd::runner
