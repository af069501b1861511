#include "diff/report_frames.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace vtlcmd::runner {
namespace {

std::vector<std::string> framesInReport(const std::string& document) {
  std::istringstream stream(document);
  ReportFrames report(stream);
  EXPECT_EQ(report.run(), Json({{"graph", "a"}})) << document;
  std::vector<std::string> frames;
  while (const std::optional<Json> frame = report.next()) frames.push_back(frame->dump());
  return frames;
}

TEST(ReportFrames, ComeOneByOneWhateverStandsAround) {
  const std::vector<std::string> frames{R"({"frame":"1"})", R"({"frame":"2"})"};
  EXPECT_EQ(framesInReport(R"({"run":{"graph":"a"},"frames":[{"frame":"1"},{"frame":"2"}]})"),
            frames);
  EXPECT_EQ(framesInReport(
                "{\n \"form\" : 2,\r\n\t\"run\" : { \"graph\" : \"a\" } ,\"frames\":\n[ "
                "{\"frame\":\"1\"}\n, {\"frame\":\"2\"} ] , \"times\": {\"frames\":[3]} }\n\n"),
            frames);
}

TEST(ReportFrames, MayComeBeforeTheRun) {
  EXPECT_EQ(framesInReport(
                R"({"exit_code":0,"frames":[{"frame":"1"}],"missing":null,"run":{"graph":"a"}})"),
            (std::vector<std::string>{R"({"frame":"1"})"}));
}

TEST(ReportFrames, MayHaveBracketsInTheirTexts) {
  EXPECT_EQ(framesInReport(
                R"({"messages":"]}\"{\\","run":{"graph":"a"},"frames":[{"a":"]\"}"},["\\"]]})"),
            (std::vector<std::string>{R"({"a":"]\"}"})", R"(["\\"])"}));
}

TEST(ReportFrames, MayBeNone) {
  EXPECT_TRUE(framesInReport(R"({"run":{"graph":"a"},"frames":[ ]})").empty());
}

TEST(ReportFrames, AreNotInWhatIsNoReport) {
  for (const char* document : {"",
                               " ",
                               "[]",
                               "12",
                               "{",
                               "{}",
                               "{]",
                               R"({"run":{}})",
                               R"({"frames":[]})",
                               R"({"run":3,"frames":[]})",
                               R"({"run":{},"frames":{}})",
                               R"({"run":{},"frames":[]})"
                               "x",
                               R"({"run":{},"frames":[})",
                               R"({"run":{},"frames":[)",
                               R"({"run":{},"frames":)",
                               R"({"run":{},"frames")",
                               R"({"run":{},"frames":["a\)",
                               R"({"run":{},"frames":[],})",
                               R"({"run":,"frames":[]})",
                               R"({1:{},"run":{},"frames":[]})"}) {
    std::istringstream stream(document);
    EXPECT_ANY_THROW(ReportFrames{stream}) << document;
  }
}

TEST(ReportFrames, ThatAreNoJsonAreTold) {
  std::istringstream stream(R"({"run":{},"frames":[{"a":}]})");
  ReportFrames report(stream);
  EXPECT_THROW(static_cast<void>(report.next()), Json::exception);
}

}  // namespace
}  // namespace vtlcmd::runner
