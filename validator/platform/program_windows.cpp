#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <windows.h>

#include "platform/program.h"
#include "platform/wide_text_windows.h"

namespace vtlcmd::validator {
namespace {

/// The code page that the console had before this program.
UINT codePageBefore = 0;

}  // namespace

std::vector<std::string> commandLineWords(int, char**) {
  int count = 0;
  const std::unique_ptr<LPWSTR[], decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> texts;
  for (int i = 1; i < count; ++i) texts.push_back(utf8(words[static_cast<std::size_t>(i)]));
  return texts;
}

void prepareProcess() {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  for (std::FILE* stream : {stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  codePageBefore = GetConsoleOutputCP();
  if (codePageBefore == 0 || SetConsoleOutputCP(CP_UTF8) == 0) return;
  static_cast<void>(std::atexit([] { SetConsoleOutputCP(codePageBefore); }));
}

}  // namespace vtlcmd::validator
