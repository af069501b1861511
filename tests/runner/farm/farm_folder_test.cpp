#include "farm/farm_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runner/support/temporary_folder.h"

namespace vtlcmd::runner {
namespace {

using testing::ElementsAre;

TEST(FarmFolder, CountsItsSubmissions) {
  const TemporaryFolder place;
  const FarmFolder folder(place / "farm");
  EXPECT_EQ(folder.submissions(), 0u);
  std::filesystem::create_directories(folder.submission(1));
  std::filesystem::create_directories(folder.submission(2));
  EXPECT_EQ(folder.submissions(), 2u);
}

TEST(FarmFolder, HasJournalsByTheirNumbers) {
  const TemporaryFolder place;
  const FarmFolder folder(place / "farm");
  std::filesystem::create_directories(folder.journals());
  for (const char* name : {"10-1.journal", "2-1.journal", "1-10.journal", "1-9.journal",
                           "1-9-10.journal", "1-9-2.journal", "note.txt"})
    std::ofstream(folder.journals() / name);
  std::vector<std::string> names;
  for (const std::filesystem::path& file : folder.journalFiles())
    names.push_back(file.filename().string());
  EXPECT_THAT(names, ElementsAre("1-9.journal", "1-9-2.journal", "1-9-10.journal", "1-10.journal",
                                 "2-1.journal", "10-1.journal"));
}

TEST(FarmFolder, KeepsTheCopiesByTheirPlaces) {
  const TemporaryFolder place;
  const FarmFolder folder(place / "farm");
  const std::filesystem::path file = place / "work";
  EXPECT_EQ(folder.copyOf(file), folder.inputs() / file.relative_path());
  EXPECT_EQ(folder.copyOf(file / ".." / "other"),
            folder.inputs() / (place / "other").relative_path());
}

}  // namespace
}  // namespace vtlcmd::runner
