#include "readers/input_file.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "readers/read_error.h"

namespace vtlcmd::runner {
namespace {

class InputFiles : public testing::Test {
 protected:
  void SetUp() override { std::ofstream(file_, std::ios::binary) << "0123456789"; }
  ~InputFiles() override { std::filesystem::remove(file_); }

  static std::string next(InputFile& file, std::size_t count) {
    std::vector<unsigned char> bytes(count);
    bytes.resize(file.read(bytes));
    return {bytes.begin(), bytes.end()};
  }

  std::filesystem::path file_ = std::filesystem::path(testing::TempDir()) / "input_file_test.bin";
};

TEST_F(InputFiles, AreReadFromFrontToBack) {
  InputFile file(file_);
  EXPECT_EQ(file.remaining(), 10U);
  EXPECT_EQ(next(file, 4), "0123");
  EXPECT_EQ(file.remaining(), 6U);
  EXPECT_EQ(next(file, 100), "456789");
  EXPECT_EQ(next(file, 1), "");
}

TEST_F(InputFiles, MayBecomeShorterWhileTheyAreRead) {
  InputFile file(file_);
  EXPECT_EQ(next(file, 2), "01");
  std::filesystem::resize_file(file_, 5);
  EXPECT_EQ(next(file, 8), "234");
  EXPECT_EQ(next(file, 5), "");
}

TEST_F(InputFiles, EndWhereTheyEndedWhenTheyWereOpened) {
  InputFile file(file_);
  std::ofstream(file_, std::ios::binary | std::ios::app) << "more";
  EXPECT_EQ(next(file, 100), "0123456789");
}

}  // namespace
}  // namespace vtlcmd::runner
