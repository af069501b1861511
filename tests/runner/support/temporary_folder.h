#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace vtlcmd::runner {

/// A folder for the files of one test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder()
      : path_(std::filesystem::path(testing::TempDir()) /
              testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directory(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }

  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  /// A file in the folder, with a text in it.
  std::filesystem::path file(const std::string& name, const std::string& text = "") const {
    std::ofstream(path_ / name, std::ios::binary) << text;
    return path_ / name;
  }

  std::size_t fileCount() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_),
                                                  std::filesystem::directory_iterator()));
  }

 private:
  std::filesystem::path path_;
};

/// Makes a symbolic link, where the platform lets this process make one.
inline bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link) {
  std::error_code error;
  std::filesystem::create_symlink(target, link, error);
  return !error;
}

}  // namespace vtlcmd::runner
