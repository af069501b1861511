#include "platform/file_identity.h"

#include <system_error>

namespace vtlcmd::runner {

std::filesystem::path fileIdentity(const std::filesystem::path& file) {
  std::error_code ignored;
  // A relative path may stay one where nothing is there yet.
  return std::filesystem::weakly_canonical(std::filesystem::absolute(file, ignored), ignored);
}

}  // namespace vtlcmd::runner
