#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "runner/support/temporary_folder.h"

namespace vtlcmd::runner {
namespace {

using Lines = std::vector<Orvel::String>;

GraphResult readLines(const std::filesystem::path& file) {
  return runOperation("read_lines",
                      {{"path", R"("type": "string", "value": ")" + file.generic_string() + '"'}});
}

Lines linesIn(const std::filesystem::path& file) {
  return readLines(file).array<Orvel::String>("result");
}

TEST(ReadLines, TakesEitherLineEnd) {
  const TemporaryFolder folder;
  EXPECT_EQ(linesIn(folder.file("lines.txt", "a\r\n\n\xC3\xA9\nlast")),
            (Lines{"a", "", "\xC3\xA9", "last"}));
  EXPECT_EQ(linesIn(folder.file("lines.txt", "a\nlast\n")), (Lines{"a", "last"}));
  EXPECT_EQ(linesIn(folder.file("lines.txt")), Lines{});
  EXPECT_EQ(linesIn(folder.file("lines.txt",
                                "\xEF\xBB\xBF"
                                "a\n")),
            Lines{"a"});
}

TEST(ReadLines, RefusesWhatIsNoText) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.file("lines.txt", "a\n\xC3\n");
  EXPECT_EQ(readLines(file).messages,
            (Messages{"error: Node 'node' (read_lines): " + file.generic_string() +
                      ": line 2 isn't UTF-8 text."}));
}

}  // namespace
}  // namespace vtlcmd::runner
