#include <array>
#include <filesystem>
#include <system_error>
#include <thread>
#include <windows.h>

#include "platform/child.h"

namespace vtlcmd::validator {
namespace {

/// A kernel object, closed at its end.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { close(); }

  HANDLE get() const noexcept { return handle_; }
  void close() noexcept {
    if (handle_ != nullptr) CloseHandle(handle_);
    handle_ = nullptr;
  }

 private:
  HANDLE handle_;
};

[[noreturn]] void throwLastError() {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(),
                          "starting a check");
}

/// As the C run time takes it apart again: backslashes count where a quote follows them.
std::wstring quoted(const std::string& argument) {
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char byte : argument) {
    if (byte == '"') text.append(backslashes + 1, '\\');
    backslashes = byte == '\\' ? backslashes + 1 : 0;
    text += byte;
  }
  text.append(backslashes, '\\');
  text += '"';
  return std::filesystem::path(reinterpret_cast<const char8_t*>(text.c_str())).wstring();
}

std::wstring ownFile() {
  std::array<wchar_t, 32768> path;
  return {path.data(), GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))};
}

std::string readAll(HANDLE reader) {
  std::string text;
  std::array<char, 4096> buffer;
  for (DWORD size = 0;
       ReadFile(reader, buffer.data(), buffer.size(), &size, nullptr) != 0 && size > 0;)
    text.append(buffer.data(), size);
  return text;
}

}  // namespace

EndedChild runSelf(const std::vector<std::string>& arguments, std::chrono::milliseconds limit) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE ends[2];
  if (CreatePipe(&ends[0], &ends[1], &inherited, 0) == 0) throwLastError();
  Handle reader(ends[0]);
  Handle writer(ends[1]);
  SetHandleInformation(reader.get(), HANDLE_FLAG_INHERIT, 0);
  const Handle nothing(CreateFileW(L"NUL", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                   &inherited, OPEN_EXISTING, 0, nullptr));
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = writer.get();
  startup.hStdError = nothing.get();
  const std::wstring program = ownFile();
  std::wstring line = L"vtlcmd-validate";
  for (const std::string& argument : arguments) line += L' ' + quoted(argument);
  PROCESS_INFORMATION child{};
  if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                     &startup, &child) == 0)
    throwLastError();
  const Handle process(child.hProcess);
  const Handle thread(child.hThread);
  writer.close();
  EndedChild ended{EndedChild::End::exited, {}, {}};
  std::thread reading([&] { ended.output = readAll(reader.get()); });
  const bool inTime =
      WaitForSingleObject(process.get(), static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
  if (!inTime) TerminateProcess(process.get(), 1);
  reading.join();
  DWORD code = 0;
  GetExitCodeProcess(process.get(), &code);
  if (!inTime) {
    ended.end = EndedChild::End::timedOut;
  } else if (code != 0) {
    ended.end = EndedChild::End::crashed;
    ended.reason = "exit code " + std::to_string(code);
  }
  return ended;
}

}  // namespace vtlcmd::validator
