#include "execution/file_stamp.h"

#include <system_error>

namespace vtlcmd::runner {

FileStamp stampOf(const std::filesystem::path& file) {
  std::error_code ignored;
  return {file, std::filesystem::last_write_time(file, ignored),
          std::filesystem::file_size(file, ignored)};
}

}  // namespace vtlcmd::runner
