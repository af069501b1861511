#include "readers/file_text.h"

#include <gtest/gtest.h>

#include "runner/support/temporary_folder.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

std::string fileTextRefusal(const std::filesystem::path& file) {
  try {
    readFile(file);
  } catch (const std::system_error& error) {
    return reasonOf(error);
  }
  return "accepted";
}

TEST(FileText, EveryByteIsKept) {
  const TemporaryFolder folder;
  const std::string text = std::string(100'000, 'x') + '\0' + "\r\n\x1a\xff";
  EXPECT_EQ(readFile(folder.file("text", text)), text);
  EXPECT_EQ(readFile(folder.file("empty")), "");
}

TEST(FileText, TheSystemsReasonIsTold) {
  const TemporaryFolder folder;
  EXPECT_EQ(fileTextRefusal(folder / "absent"), "No such file or directory");
  EXPECT_EQ(fileTextRefusal(folder / ""), "Is a directory");
}

}  // namespace
}  // namespace vtlcmd::runner
