#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <system_error>
#include <windows.h>

#include "platform/process.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

/// The code page that the console had before this program.
UINT codePageBefore = 0;

bool isTerminal(DWORD stream) {
  HANDLE handle = GetStdHandle(stream);
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) != 0 &&
         SetConsoleMode(handle,
                        mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace

std::vector<std::string> commandLineWords(int, char**) {
  int count = 0;
  const std::unique_ptr<LPWSTR[], decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> texts;
  for (int i = 1; i < count; ++i) texts.push_back(utf8Path(words[static_cast<std::size_t>(i)]));
  return texts;
}

void prepareStandardStreams() {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  codePageBefore = GetConsoleOutputCP();
  if (codePageBefore == 0 || SetConsoleOutputCP(CP_UTF8) == 0) return;
  static_cast<void>(std::atexit([] { SetConsoleOutputCP(codePageBefore); }));
}

void keepFreedMemory() noexcept {}

std::FILE* takeStandardOutput() {
  const int own = _dup(_fileno(stdout));
  std::FILE* const stream = own < 0 ? nullptr : _fdopen(own, "wb");
  if (stream == nullptr || _dup2(_fileno(stderr), _fileno(stdout)) != 0)
    throw std::system_error(errno, std::generic_category());
  return stream;
}

bool outputGoesToTerminal() { return isTerminal(STD_OUTPUT_HANDLE); }

bool errorsGoToTerminal() { return isTerminal(STD_ERROR_HANDLE); }

std::filesystem::path ownFile() {
  constexpr std::size_t longestPath = 32768;
  std::wstring path(longestPath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

}  // namespace vtlcmd::runner
