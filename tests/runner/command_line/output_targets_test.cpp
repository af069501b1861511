#include "command_line/output_targets.h"

#include <gmock/gmock.h>

#include "command_line/option_values.h"
#include "command_line/usage_error.h"
#include "runner/support/temporary_folder.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

class OutputTargetsTest : public testing::Test {
 protected:
  /// What is said of targets that are added in order; the folder's name is left out.
  std::string refusalOf(const std::vector<fs::path>& inputs, const std::vector<fs::path>& targets) {
    OutputTargets outputs(inputs);
    try {
      for (const fs::path& target : targets) outputs.add("--report", fileText(target));
    } catch (const UsageError& error) {
      return withoutFolder(error.what());
    }
    return "accepted";
  }

  /// What is said of series of targets for some frames, after single ones.
  std::string refusalOfSeries(const std::vector<std::string>& series, const std::string& frames,
                              const std::vector<fs::path>& inputs = {},
                              const std::string& target = "-") {
    OutputTargets outputs(inputs);
    try {
      outputs.add("--report", target);
      for (const std::string& name : series) {
        outputs.addSeries("--save", FrameFileName(fileText(folder_ / name)), parseFrames(frames));
      }
    } catch (const UsageError& error) {
      return withoutFolder(error.what());
    }
    return "accepted";
  }

  std::string withoutFolder(std::string text) const {
    const std::string folder = fileText(folder_ / "");
    for (std::size_t at = 0; (at = text.find(folder)) != std::string::npos;)
      text.erase(at, folder.size());
    return text;
  }

  TemporaryFolder folder_;
};

TEST_F(OutputTargetsTest, NewAndOldFilesAreTargets) {
  const fs::path old = folder_.file("old.json", "text");
  EXPECT_EQ(refusalOf({}, {folder_ / "new.json", old, "-"}), "accepted");
  EXPECT_FALSE(fs::exists(folder_ / "new.json"));
  EXPECT_EQ(fs::file_size(old), 4U);
  EXPECT_EQ(folder_.fileCount(), 1U);
}

TEST_F(OutputTargetsTest, ANameIsNeeded) {
  EXPECT_EQ(refusalOf({}, {""}), "--report wants the name of a file, not ''");
}

TEST_F(OutputTargetsTest, WhatTheCommandReadsIsKept) {
  const fs::path graph = folder_.file("graph.json");
  EXPECT_EQ(refusalOf({graph}, {graph}),
            "--report: 'graph.json' is a file that this command reads");
  EXPECT_EQ(refusalOf({graph}, {folder_ / "./graph.json"}),
            "--report: './graph.json' is a file that this command reads");
  fs::create_hard_link(graph, folder_ / "other.json");
  EXPECT_EQ(refusalOf({graph}, {folder_ / "other.json"}),
            "--report: 'other.json' is a file that this command reads");
  if (!makeLink("graph.json", folder_ / "link.json")) return;
  EXPECT_EQ(refusalOf({graph}, {folder_ / "link.json"}),
            "--report: 'link.json' is a file that this command reads");
  EXPECT_EQ(refusalOf({folder_ / "link.json"}, {graph}),
            "--report: 'graph.json' is a file that this command reads");
}

TEST_F(OutputTargetsTest, NothingIsWrittenTwice) {
  const fs::path target = folder_ / "report.json";
  EXPECT_EQ(refusalOf({}, {target, target}), "--report: 'report.json' would be written twice");
  EXPECT_EQ(refusalOf({}, {target, folder_ / "./report.json"}),
            "--report: './report.json' would be written twice");
  EXPECT_EQ(refusalOf({}, {"no_such.json", "./no_such.json"}),
            "--report: './no_such.json' would be written twice");
  EXPECT_EQ(refusalOf({}, {"./no_such.json", "no_such.json"}),
            "--report: 'no_such.json' would be written twice");
  EXPECT_EQ(refusalOf({}, {target, folder_ / "report.html"}), "accepted");
  EXPECT_EQ(refusalOf({}, {"-", "-"}), "--report: only one document fits the standard output");
}

TEST_F(OutputTargetsTest, WhatCanNotBeWrittenIsRefusedWithTheReason) {
  EXPECT_EQ(refusalOf({}, {folder_ / "missing/report.json"}),
            "--report: 'missing/report.json' can't be written: No such file or directory");
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(refusalOf({}, {folder_ / "folder"}),
            "--report: 'folder' can't be written: Is a directory");
  folder_.file("file");
  // The reason differs by platform.
  EXPECT_THAT(refusalOf({}, {folder_ / "file/report.json"}),
              testing::StartsWith("--report: 'file/report.json' can't be written: "));
}

TEST_F(OutputTargetsTest, ReadOnlyFilesStay) {
  const fs::path file = folder_.file("report.json");
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_EQ(refusalOf({}, {file}), "--report: 'report.json' can't be written: Permission denied");
  fs::permissions(file, fs::perms::owner_all);
}

TEST_F(OutputTargetsTest, LinksThatLeadNowhereAreRefused) {
  if (!makeLink("nowhere.json", folder_ / "dangling.json")) GTEST_SKIP() << "no links here";
  makeLink("loop.json", folder_ / "loop.json");
  EXPECT_EQ(refusalOf({}, {folder_ / "dangling.json"}),
            "--report: 'dangling.json' can't be written: No such file or directory");
  EXPECT_EQ(refusalOf({}, {folder_ / "loop.json"}),
            "--report: 'loop.json' can't be written: Too many levels of symbolic links");
}

TEST_F(OutputTargetsTest, ASeriesIsAFileAFrame) {
  folder_.file("a.2.npy", "old");
  EXPECT_EQ(refusalOfSeries({"a.{frame}.npy", "b.{frame}.npy"}, "1-3"), "accepted");
  // A frame that runs twice writes its file twice.
  EXPECT_EQ(refusalOfSeries({"a.{frame}.npy"}, "1,2,1"), "accepted");
  EXPECT_EQ(folder_.fileCount(), 1U);
}

TEST_F(OutputTargetsTest, NoFileIsOfTwoSeries) {
  EXPECT_EQ(refusalOfSeries({"{frame}1", "1{frame}"}, "2-10"), "accepted");
  EXPECT_EQ(refusalOfSeries({"{frame}1", "1{frame}"}, "2-11"),
            "--save: '111' would be written twice");
  EXPECT_EQ(refusalOfSeries({"a", "./a"}, "1"), "--save: './a' would be written twice");
  EXPECT_EQ(refusalOfSeries({"a{frame}"}, "1-3", {}, fileText(folder_ / "a3")),
            "--save: 'a3' would be written twice");
  folder_.file("2");
  if (!makeLink("2", folder_ / "1")) return;
  EXPECT_EQ(refusalOfSeries({"{frame}"}, "1-2"), "--save: '2' would be written twice");
}

TEST_F(OutputTargetsTest, EachFileOfASeriesIsLookedAt) {
  const fs::path input = folder_.file("2");
  EXPECT_EQ(refusalOfSeries({"{frame}"}, "1-3", {input}),
            "--save: '2' is a file that this command reads");
  fs::create_hard_link(input, folder_ / "3");
  EXPECT_EQ(refusalOfSeries({"{frame}"}, "3", {input}),
            "--save: '3' is a file that this command reads");
  fs::create_directory(folder_ / "4");
  EXPECT_EQ(refusalOfSeries({"{frame}"}, "1-4"), "--save: '4' can't be written: Is a directory");
  EXPECT_EQ(refusalOfSeries({"{frame}/x"}, "4-5"),
            "--save: '5/x' can't be written: No such file or directory");
}

}  // namespace
}  // namespace vtlcmd::runner
