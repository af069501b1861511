#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "journal/process_identity.h"
#include "report/whole_file.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

class WholeFileLeftovers : public testing::Test {
 protected:
  WholeFileLeftovers() : folder_(fs::path(testing::TempDir()) / "whole_file_posix_test") {
    fs::remove_all(folder_);
    fs::create_directory(folder_);
  }
  ~WholeFileLeftovers() override { fs::remove_all(folder_); }

  /// Has a process be killed while it writes a file.
  static void writeAndDie(const fs::path& name) {
    const pid_t process = ::fork();
    if (process == 0) {
      WholeFile file(name);
      file.stream() << "half" << std::flush;
      static_cast<void>(std::raise(SIGKILL));
    }
    int status = 0;
    EXPECT_EQ(::waitpid(process, &status, 0), process);
    EXPECT_TRUE(WIFSIGNALED(status));
  }

  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path folder_;
};

TEST_F(WholeFileLeftovers, OfKilledProcessesAreRemoved) {
  writeAndDie(folder_ / "report.json");
  writeAndDie(folder_ / "report.json");
  EXPECT_EQ(filesInFolder(), 2U);
  WholeFile::removeLeftovers(folder_ / "report.json");
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(WholeFileLeftovers, OfOtherFilesStay) {
  writeAndDie(folder_ / "report.json.html");
  writeAndDie(folder_ / "run.json");
  WholeFile::removeLeftovers(folder_ / "report.json");
  EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(WholeFileLeftovers, OfRunningProcessesStay) {
  WholeFile file(folder_ / "report.json");
  WholeFile::removeLeftovers(folder_ / "report.json");
  file.stream() << "whole";
  EXPECT_NO_THROW(file.commit());
}

TEST(ProcessIdentity, KnowsWhatRuns) {
  EXPECT_TRUE(isRunning(processNumber()));
  EXPECT_TRUE(isRunning(1));
  EXPECT_FALSE(isRunning(0));
  const pid_t process = ::fork();
  if (process == 0) std::_Exit(0);
  ASSERT_EQ(::waitpid(process, nullptr, 0), process);
  EXPECT_FALSE(isRunning(static_cast<std::uint64_t>(process)));
}

}  // namespace
}  // namespace vtlcmd::runner
