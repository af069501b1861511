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

}  // namespace vtlcmd::runner
