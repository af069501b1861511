#include <random>
#include <string>
#include <system_error>
#include <windows.h>

#include "platform/writable_folder.h"

namespace vtlcmd::runner {

void requireWritableFolder(const std::filesystem::path& folder) {
  std::random_device random;
  const std::filesystem::path file =
      folder / (".vtlcmd-" + std::to_string(random()) + "-" + std::to_string(random()));
  // The system deletes it with its last handle.
  HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                              FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    const std::error_code code(static_cast<int>(GetLastError()), std::system_category());
    const std::error_condition condition = code.default_error_condition();
    throw std::system_error(condition.value(), std::generic_category());
  }
  CloseHandle(handle);
}

}  // namespace vtlcmd::runner
