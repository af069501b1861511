#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What a fresh process that loads the plug-in and ends writes to its error stream. A null value
/// leaves the variable unset.
std::string errorTextOfLoading(const char* value) {
  std::array<int, 2> pipeEnds{};
  EXPECT_EQ(pipe(pipeEnds.data()), 0);
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipeEnds[1], STDERR_FILENO);
    unsetenv("QUILLON_DUMP_VERSION_INFO");
    if (value != nullptr) setenv("QUILLON_DUMP_VERSION_INFO", value, 1);
    execl(VTLCMD_LOADER, VTLCMD_LOADER, VTLCMD_PLUG_IN, nullptr);
    _exit(127);
  }
  close(pipeEnds[1]);
  std::string text;
  std::array<char, 4096> buffer{};
  for (ssize_t size = 0; (size = read(pipeEnds[0], buffer.data(), buffer.size())) > 0;) {
    text.append(buffer.data(), static_cast<std::size_t>(size));
  }
  close(pipeEnds[0]);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  return text;
}

TEST(Banner, IsWrittenOnceWhileLoadingWhenAskedFor) {
  const std::regex line(
      "VtlCmdTranslation: Vantrel version [0-9]+\\.[0-9]+\\.[0-9]+\\.[0-9]+ "
      "\\([A-Z][a-z]{2} [0-9]{2}/[0-9]{2}/[0-9]{4}, [0-9]{12}, build [0-9]+, "
      "commit [0-9a-f]{7}, branch \\S+\\)\n");
  for (const char* value : {"1", "2", "-1", "1abc"}) {
    const std::string text = errorTextOfLoading(value);
    EXPECT_TRUE(std::regex_match(text, line)) << text;
  }
}

TEST(Banner, IsSilentOtherwise) {
  EXPECT_EQ(errorTextOfLoading(nullptr), "");
  for (const char* value : {"0", "", "yes", "true", "x1"}) {
    EXPECT_EQ(errorTextOfLoading(value), "") << value;
  }
}

}  // namespace
