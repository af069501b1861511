#include <algorithm>
#include <array>
#include <cstdio>
#include <system_error>
#include <utility>
#include <windows.h>

#include "platform/child_process.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

void check(BOOL result) {
  if (result == 0)
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE opened) : value(opened) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { close(); }

  void close() {
    if (value != nullptr && value != INVALID_HANDLE_VALUE) CloseHandle(value);
    value = nullptr;
  }

  HANDLE value = nullptr;
};

/// A word as CommandLineToArgvW reads it back: backslashes count only before a quote.
void appendQuoted(std::wstring& line, const std::wstring& word) {
  line += L'"';
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') line.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    line += c;
  }
  line.append(backslashes, L'\\');
  line += L'"';
}

std::wstring commandLine(const std::filesystem::path& program,
                         const std::vector<std::string>& words) {
  std::wstring line;
  appendQuoted(line, program.native());
  for (const std::string& word : words) {
    line += L' ';
    appendQuoted(line, widePath(word));
  }
  return line;
}

/// Lets a child inherit some handles and no others.
class InheritedHandles {
 public:
  explicit InheritedHandles(std::vector<HANDLE> handles) : handles_(std::move(handles)) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    memory_.resize(size);
    check(InitializeProcThreadAttributeList(list(), 1, 0, &size));
    check(UpdateProcThreadAttribute(list(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                    handles_.size() * sizeof(HANDLE), nullptr, nullptr));
  }
  InheritedHandles(const InheritedHandles&) = delete;
  InheritedHandles& operator=(const InheritedHandles&) = delete;
  ~InheritedHandles() { DeleteProcThreadAttributeList(list()); }

  LPPROC_THREAD_ATTRIBUTE_LIST list() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data());
  }

 private:
  std::vector<HANDLE> handles_;
  std::vector<unsigned char> memory_;
};

/// Whether reading a pipe wouldn't wait: there is something in it, or its other end is closed.
bool saidSomething(HANDLE pipe) {
  DWORD available = 0;
  return pipe != nullptr &&
         (PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) == 0 || available > 0);
}

/// What a process ends with that this one, or the system's own programs, end.
constexpr UINT killedExit = 1;

}  // namespace

struct ChildProcess::Handles {
  /// By ChildOutput.
  std::array<Handle, 2> outputs;
  Handle input;
  Handle process;
  /// Ends the child when this handle is closed, however this process ends.
  Handle job;
};

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::string>& words, ChildStreams streams)
    : handles_(std::make_unique<Handles>()) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  // The child's ends.
  Handle input;
  Handle output;
  Handle errors;
  check(CreatePipe(&handles_->outputs[0].value, &output.value, &inherited, 0));
  if (streams == ChildStreams::all) {
    check(CreatePipe(&handles_->outputs[1].value, &errors.value, &inherited, 0));
    check(CreatePipe(&input.value, &handles_->input.value, &inherited, 0));
  }
  const Handle nowhere(CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING, 0,
                                   nullptr));
  check(nowhere.value != INVALID_HANDLE_VALUE);

  handles_->job.value = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(handles_->job.value, JobObjectExtendedLimitInformation, &limits,
                          sizeof limits);

  const auto leadingTo = [&nowhere](const Handle& end) {
    return end.value == nullptr ? nowhere.value : end.value;
  };
  // None may stand there twice.
  std::vector<HANDLE> ends{output.value, nowhere.value};
  if (streams == ChildStreams::all) ends.insert(ends.end(), {input.value, errors.value});
  InheritedHandles handles(std::move(ends));
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = leadingTo(input);
  startup.StartupInfo.hStdOutput = output.value;
  startup.StartupInfo.hStdError = leadingTo(errors);
  startup.lpAttributeList = handles.list();
  constexpr DWORD flags =
      CREATE_SUSPENDED | CREATE_NO_WINDOW | CREATE_NEW_PROCESS_GROUP | EXTENDED_STARTUPINFO_PRESENT;
  std::wstring line = commandLine(program, words);
  PROCESS_INFORMATION child{};
  check(CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, flags, nullptr,
                       nullptr, &startup.StartupInfo, &child));
  handles_->process.value = child.hProcess;
  const Handle thread(child.hThread);
  AssignProcessToJobObject(handles_->job.value, child.hProcess);
  ResumeThread(thread.value);
}

ChildProcess::~ChildProcess() {
  if (handles_->process.value != nullptr) kill();
}

std::optional<std::size_t> ChildProcess::read(std::span<unsigned char> bytes, Time deadline,
                                              ChildOutput output) {
  Handle& source = handles_->outputs[static_cast<std::size_t>(output)];
  // Reading a pipe knows no deadline.
  while (!saidSomething(source.value)) {
    if (std::chrono::steady_clock::now() >= deadline) return std::nullopt;
    Sleep(1);
  }
  DWORD count = 0;
  const auto wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30U));
  if (ReadFile(source.value, bytes.data(), wanted, &count, nullptr) != 0 && count > 0) return count;
  // The child has closed it: there is nothing to wait for any more.
  source.close();
  return 0;
}

void ChildProcess::waitForAny(std::span<ChildProcess* const> children, Time deadline) {
  const auto hasNews = [](const ChildProcess* child) {
    return std::any_of(child->handles_->outputs.begin(), child->handles_->outputs.end(),
                       [](const Handle& output) { return saidSomething(output.value); });
  };
  while (std::none_of(children.begin(), children.end(), hasNews) &&
         std::chrono::steady_clock::now() < deadline)
    Sleep(1);
}

void ChildProcess::send(std::string_view text) {
  while (!text.empty()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(text.size(), 1U << 30U));
    if (WriteFile(handles_->input.value, text.data(), wanted, &count, nullptr) == 0) return;
    text.remove_prefix(count);
  }
}

void ChildProcess::kill() noexcept { TerminateProcess(handles_->process.value, killedExit); }

ProcessEnd ChildProcess::wait() {
  DWORD code = 0;
  WaitForSingleObject(handles_->process.value, INFINITE);
  check(GetExitCodeProcess(handles_->process.value, &code));
  if (code == ERROR_NOT_ENOUGH_QUOTA) return {ProcessEnd::Kind::tookTooMuchTime};
  // The codes of unhandled exceptions.
  if (code < 0xC0000000U) return {ProcessEnd::Kind::exited, static_cast<int>(code)};
  char text[32];
  static_cast<void>(std::snprintf(text, sizeof text, "exception 0x%08lX", code));
  return {ProcessEnd::Kind::crashed, 0, text};
}

void prepareAsChild() { SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX); }

void limitProcessorTime(std::chrono::seconds time) {
  JOBOBJECT_BASIC_LIMIT_INFORMATION limits{};
  limits.LimitFlags = JOB_OBJECT_LIMIT_PROCESS_TIME;
  // In units of 100 nanoseconds.
  limits.PerProcessUserTimeLimit.QuadPart = time.count() * 10'000'000;
  // The job must last as long as the process, which closes the handle when it ends.
  HANDLE job = CreateJobObjectW(nullptr, nullptr);
  SetInformationJobObject(job, JobObjectBasicLimitInformation, &limits, sizeof limits);
  AssignProcessToJobObject(job, GetCurrentProcess());
}

}  // namespace vtlcmd::runner
