#include "text/path_text.h"

#include <system_error>

#include "text/utf8.h"

namespace vtlcmd::runner {
namespace {

/// Whether a wide character takes two units beyond the first 65536 characters.
constexpr bool unitsArePaired = sizeof(wchar_t) == 2;

char32_t paired(char32_t high, char32_t low) {
  return 0x10000 + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}

/// Takes the first character off a wide text, or what stands there and is none.
char32_t takeCharacter(std::wstring_view& text) {
  const auto unit = [&text](std::size_t i) { return static_cast<char32_t>(text[i]); };
  const bool isPair = unitsArePaired && text.size() > 1 && (unit(0) & 0xFC00U) == 0xD800U &&
                      (unit(1) & 0xFC00U) == 0xDC00U;
  const char32_t character = isPair ? paired(unit(0), unit(1)) : unit(0);
  text.remove_prefix(isPair ? 2 : 1);
  return character;
}

}  // namespace

HostPath widePath(std::string_view path) {
  HostPath wide;
  const auto put = [&wide](char32_t unit) { wide.push_back(static_cast<wchar_t>(unit)); };
  while (!path.empty()) {
    const std::optional<char32_t> character = takeCharacter(path);
    if (!character) throw std::system_error(std::make_error_code(std::errc::illegal_byte_sequence));
    if (unitsArePaired && *character >= 0x10000) {
      put(0xD800U + ((*character - 0x10000U) >> 10U));
      put(0xDC00U + (*character & 0x3FFU));
    } else {
      put(*character);
    }
  }
  return wide;
}

std::string utf8Path(const HostPath& path) {
  std::string text;
  for (std::wstring_view rest = path; !rest.empty();) appendCharacter(text, takeCharacter(rest));
  return text;
}

#if defined(_WIN32)
std::filesystem::path filePath(std::string_view text) { return widePath(text); }
std::string fileText(const std::filesystem::path& file) { return utf8Path(file.native()); }
#else
std::filesystem::path filePath(std::string_view text) { return text; }
std::string fileText(const std::filesystem::path& file) { return file.native(); }
#endif

std::string extensionOf(const std::filesystem::path& file) {
  std::string extension = fileText(file.extension());
  for (char& c : extension) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return extension;
}

}  // namespace vtlcmd::runner
