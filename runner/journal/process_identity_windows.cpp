#include <array>
#include <windows.h>

#include "journal/process_identity.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

std::string hostName() {
  std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
  auto size = static_cast<DWORD>(name.size());
  return GetComputerNameW(name.data(), &size) != 0 ? utf8Path(name.data()) : std::string();
}

std::uint64_t processNumber() { return GetCurrentProcessId(); }

std::string processSpace() { return hostName(); }

bool isRunning(std::uint64_t process) noexcept {
  HANDLE handle =
      OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(process));
  if (handle == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
  DWORD exitCode = 0;
  const bool runs = GetExitCodeProcess(handle, &exitCode) == 0 || exitCode == STILL_ACTIVE;
  CloseHandle(handle);
  return runs;
}

}  // namespace vtlcmd::runner
