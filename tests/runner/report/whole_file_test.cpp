#include "report/whole_file.h"

#include <chrono>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <system_error>

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

class WholeFileTest : public testing::Test {
 protected:
  WholeFileTest() : folder_(fs::path(testing::TempDir()) / "whole_file_test") {
    fs::remove_all(folder_);
    fs::create_directory(folder_);
  }
  ~WholeFileTest() override { fs::remove_all(folder_); }

  static void fill(const fs::path& file, const std::string& text) { std::ofstream(file) << text; }

  static std::string textOf(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path folder_;
};

TEST_F(WholeFileTest, AppearsWithTheCommit) {
  const fs::path name = folder_ / "report.json";
  WholeFile file(name);
  file.stream() << "new" << std::flush;
  EXPECT_FALSE(fs::exists(name));
  file.commit();
  EXPECT_EQ(textOf(name), "new");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(WholeFileTest, KeepsTheOldTextUntilTheCommit) {
  const fs::path name = folder_ / "report.json";
  fill(name, "old");
  {
    WholeFile file(name);
    file.stream() << "new" << std::flush;
    EXPECT_EQ(textOf(name), "old");
  }
  EXPECT_EQ(textOf(name), "old");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(WholeFileTest, KeepsPermissions) {
  const fs::path name = folder_ / "report.json";
  fill(name, "old");
  fs::permissions(name, fs::perms::owner_read | fs::perms::owner_write);
  const fs::perms before = fs::status(name).permissions();
  WholeFile file(name);
  file.commit();
  EXPECT_EQ(fs::status(name).permissions(), before);
}

TEST_F(WholeFileTest, ReplacesWhatALinkNames) {
  fill(folder_ / "real.json", "old");
  std::error_code error;
  fs::create_symlink("real.json", folder_ / "link.json", error);
  if (error) GTEST_SKIP() << "no links here: " << error.message();
  WholeFile file(folder_ / "link.json");
  file.stream() << "new";
  file.commit();
  EXPECT_EQ(textOf(folder_ / "real.json"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link.json"));
}

TEST_F(WholeFileTest, RefusesAFolderThatIsNotThere) {
  try {
    const WholeFile file(folder_ / "missing" / "report.json");
    FAIL() << "accepted";
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
  }
}

TEST_F(WholeFileTest, RefusesLinksThatLeadNowhere) {
  std::error_code error;
  fs::create_symlink("nowhere.json", folder_ / "link.json", error);
  if (error) GTEST_SKIP() << "no links here: " << error.message();
  EXPECT_THROW(const WholeFile file(folder_ / "link.json"), std::system_error);
  EXPECT_TRUE(fs::is_symlink(folder_ / "link.json"));
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(WholeFileTest, RefusesToReplaceAReadOnlyFile) {
  const fs::path name = folder_ / "report.json";
  fill(name, "old");
  fs::permissions(name, fs::perms::owner_read);
  EXPECT_THROW(const WholeFile file(name), std::system_error);
  EXPECT_EQ(textOf(name), "old");
  fs::permissions(name, fs::perms::owner_all);
}

TEST_F(WholeFileTest, AFullDeviceIsCalledThat) {
  const fs::path full = "/dev/full";
  if (!fs::exists(full)) GTEST_SKIP() << "no such device here";
  // Less and more than a buffer holds.
  for (const std::size_t size : {std::size_t{1}, std::size_t{1} << 20U}) {
    WholeFile file(full);
    file.stream() << std::string(size, 'x') << "behind it";
    try {
      file.commit();
      FAIL() << "accepted " << size;
    } catch (const std::system_error& error) {
      EXPECT_EQ(error.code(), std::errc::no_space_on_device) << size;
    }
  }
}

TEST_F(WholeFileTest, CheckingCreatesNothing) {
#ifdef _WIN32
  GTEST_SKIP() << "the system deletes what is created here";
#endif
  const fs::file_time_type before = fs::last_write_time(folder_) - std::chrono::hours(1);
  fs::last_write_time(folder_, before);
  WholeFile::check(folder_ / "report.json");
  EXPECT_EQ(fs::last_write_time(folder_), before);
  EXPECT_EQ(filesInFolder(), 0U);
  EXPECT_THROW(WholeFile::check(folder_ / "missing" / "report.json"), std::system_error);
  EXPECT_THROW(WholeFile::check(folder_), std::system_error);
}

TEST_F(WholeFileTest, RefusesAFolderInItsPlace) {
  EXPECT_THROW(const WholeFile file(folder_), std::system_error);
}

}  // namespace
}  // namespace vtlcmd::runner
