#include <array>
#include <cstdio>
#include <system_error>
#include <thread>
#include <windows.h>

#include "platform/child.h"
#include "platform/wide_text_windows.h"

namespace vtlcmd::validator {
namespace {

void check(BOOL result) {
  if (result == 0)
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(),
                            "starting a check");
}

/// A kernel object, closed at its end.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE opened) : value(opened) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { close(); }

  void close() noexcept {
    if (value != nullptr && value != INVALID_HANDLE_VALUE) CloseHandle(value);
    value = nullptr;
  }

  HANDLE value = nullptr;
};

/// Lets a child inherit two handles and none of those that are other children's.
class InheritedHandles {
 public:
  InheritedHandles(HANDLE first, HANDLE second) : handles_{first, second} {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    memory_.resize(size);
    check(InitializeProcThreadAttributeList(list(), 1, 0, &size));
    check(UpdateProcThreadAttribute(list(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                    sizeof handles_, nullptr, nullptr));
  }
  InheritedHandles(const InheritedHandles&) = delete;
  InheritedHandles& operator=(const InheritedHandles&) = delete;
  ~InheritedHandles() { DeleteProcThreadAttributeList(list()); }

  LPPROC_THREAD_ATTRIBUTE_LIST list() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data());
  }

 private:
  std::array<HANDLE, 2> handles_;
  std::vector<unsigned char> memory_;
};

/// As CommandLineToArgvW takes it apart again: backslashes count where a quote follows them.
std::string quoted(const std::string& argument) {
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char byte : argument) {
    if (byte == '"') text.append(backslashes + 1, '\\');
    backslashes = byte == '\\' ? backslashes + 1 : 0;
    text += byte;
  }
  text.append(backslashes, '\\');
  return text + '"';
}

std::wstring ownFile() {
  constexpr std::size_t longestPath = 32768;
  std::wstring path(longestPath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

HANDLE start(const std::vector<std::string>& arguments, HANDLE output, HANDLE errors) {
  InheritedHandles handles(output, errors);
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdOutput = output;
  startup.StartupInfo.hStdError = errors;
  startup.lpAttributeList = handles.list();
  std::string words = "vtlcmd-validate";
  for (const std::string& argument : arguments) words += ' ' + quoted(argument);
  std::wstring line = wide(words);
  PROCESS_INFORMATION child{};
  check(CreateProcessW(ownFile().c_str(), line.data(), nullptr, nullptr, TRUE,
                       EXTENDED_STARTUPINFO_PRESENT, nullptr, nullptr, &startup.StartupInfo,
                       &child));
  CloseHandle(child.hThread);
  return child.hProcess;
}

std::string readAll(HANDLE reader) {
  std::string text;
  std::array<char, 4096> buffer;
  for (DWORD size = 0;
       ReadFile(reader, buffer.data(), buffer.size(), &size, nullptr) != 0 && size > 0;) {
    if (text.size() < outputLimit) text.append(buffer.data(), size);
  }
  return text;
}

std::string endOf(DWORD code) {
  // The codes of unhandled exceptions.
  if (code < 0xC0000000U) return "exit code " + std::to_string(code);
  char text[32];
  static_cast<void>(std::snprintf(text, sizeof text, "exception 0x%08lX", code));
  return text;
}

}  // namespace

EndedChild runSelf(const std::vector<std::string>& arguments, std::chrono::milliseconds limit) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  Handle reader;
  Handle writer;
  check(CreatePipe(&reader.value, &writer.value, &inherited, 0));
  const Handle nowhere(CreateFileW(L"NUL", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                   &inherited, OPEN_EXISTING, 0, nullptr));
  check(nowhere.value != INVALID_HANDLE_VALUE);
  const Handle process(start(arguments, writer.value, nowhere.value));
  writer.close();
  EndedChild ended{EndedChild::End::exited, {}, {}};
  std::thread reading([&] { ended.output = readAll(reader.value); });
  const bool inTime =
      WaitForSingleObject(process.value, static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
  if (!inTime) TerminateProcess(process.value, 1);
  reading.join();
  DWORD code = 0;
  check(GetExitCodeProcess(process.value, &code));
  if (!inTime) {
    ended.end = EndedChild::End::timedOut;
  } else if (code != 0) {
    ended.end = EndedChild::End::crashed;
    ended.reason = endOf(code);
  }
  return ended;
}

}  // namespace vtlcmd::validator
