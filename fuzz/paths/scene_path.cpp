#include "vtlcmd/translation/scene_path.h"

#include <regex>
#include <string>
#include <system_error>

#include "input.h"
#include "requirement.h"
#include "target.h"

namespace {

using vtlcmd::fuzz::Input;
using vtlcmd::fuzz::require;

/// Few characters, most of which matter; else any number.
std::wstring pathFrom(Input& input) {
  constexpr std::size_t mostCharacters = 100;
  constexpr std::wstring_view usual = L"\\/:?.aZ1 ";
  std::wstring path;
  while (!input.empty() && path.size() < mostCharacters) {
    const std::size_t choice = input.below(usual.size() + 2);
    path += choice < usual.size()
                ? usual[choice]
                : static_cast<wchar_t>(choice == usual.size() ? input.take<std::uint16_t>()
                                                              : input.take<std::uint32_t>());
  }
  return path;
}

/// The rule in another form: a root is a drive, the marker of a plain path, or a server and its
/// share; what stands behind the last separator behind it is the file's name.
std::wstring directoryOf(const std::wstring& path) {
  static const std::wregex form(
      L"((?:[A-Za-z]:|[\\\\/]{2}(?:[?.](?=[\\\\/]|$)|[^\\\\/]+(?:[\\\\/][^\\\\/]*)?))?"
      L"(?:[^]*[\\\\/])?)[^\\\\/]*");
  std::wsmatch match;
  require(std::regex_match(path, match, form), "every path has a directory");
  return match[1];
}

/// The bytes of UTF-8 in a table's form; nothing when a character is none of Unicode's.
bool utf8Of(const std::wstring& path, std::string& text) {
  for (const wchar_t character : path) {
    const auto code = static_cast<std::uint32_t>(character);
    if (code > 0x10FFFF || (code >> 11U) == 0x1B) return false;
    const unsigned bytes = code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
    constexpr unsigned firsts[] = {0, 0, 0xC0, 0xE0, 0xF0};
    for (unsigned i = bytes; i-- > 0;) {
      const unsigned bits = code >> (6 * i);
      text += static_cast<char>(bytes == 1       ? bits
                                : i + 1 == bytes ? firsts[bytes] + bits
                                                 : 0x80 + bits % 64);
    }
  }
  return true;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::wstring path = pathFrom(input);
  const vtlcmd::ScenePath cut = vtlcmd::splitScenePath(path);
  require(cut.directory + cut.fileName == path, "the two parts are the path");
  require(cut.directory == directoryOf(path), "the directory is that of the rule's other form");

  std::string expected;
  const bool isUnicode = utf8Of(path, expected);
  try {
    const std::string text = vtlcmd::narrowPath(path);
    require(isUnicode, "what is no character is refused");
    vtlcmd::fuzz::requireEqual("the narrow text", text, expected);
  } catch (const std::system_error&) {
    require(!isUnicode, "what is a character is not refused");
  }
  return 0;
}
