#include <algorithm>
#include <array>
#include <cstdlib>
#include <io.h>
#include <windows.h>

#include "support/process.h"

namespace vtlcmd::testing {
namespace {

constexpr int errorDescriptor = 2;

}  // namespace

void setEnvironment(const char* name, const char* value) {
  _putenv_s(name, value == nullptr ? "" : value);
}

EndedProgram runProgram(const char* program, const char* argument, ErrorStream errors) {
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  if (CreatePipe(&readEnd, &writeEnd, &inherited, 0) == 0) std::abort();
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdError = errors == ErrorStream::read ? writeEnd : nullptr;
  std::string commandLine = '"' + std::string(program) + "\" \"" + argument + '"';
  PROCESS_INFORMATION child{};
  if (CreateProcessA(program, commandLine.data(), nullptr, nullptr, TRUE, DETACHED_PROCESS, nullptr,
                     nullptr, &startup, &child) == 0)
    std::abort();
  CloseHandle(writeEnd);
  std::string text;
  std::array<char, 4096> buffer{};
  for (DWORD size = 0;
       ReadFile(readEnd, buffer.data(), buffer.size(), &size, nullptr) != 0 && size > 0;)
    text.append(buffer.data(), size);
  CloseHandle(readEnd);
  WaitForSingleObject(child.hProcess, INFINITE);
  DWORD exitCode = 0;
  GetExitCodeProcess(child.hProcess, &exitCode);
  CloseHandle(child.hThread);
  CloseHandle(child.hProcess);
  std::erase(text, '\r');
  return {static_cast<int>(exitCode), text};
}

ClosedErrorStream::ClosedErrorStream() : kept_(_dup(errorDescriptor)) { _close(errorDescriptor); }

ClosedErrorStream::~ClosedErrorStream() {
  _dup2(kept_, errorDescriptor);
  _close(kept_);
}

}  // namespace vtlcmd::testing
