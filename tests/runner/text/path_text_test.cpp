#include "text/path_text.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <system_error>

namespace vtlcmd::runner {
namespace {

TEST(WidePath, ReadsCharactersOfEveryLength) {
  EXPECT_EQ(widePath(""), L"");
  EXPECT_EQ(widePath("/shots/a"), L"/shots/a");
  EXPECT_EQ(widePath("b\xC3\xA4r"), L"b\u00e4r");
  EXPECT_EQ(widePath("\xE2\x82\xAC"), L"\u20ac");
  EXPECT_EQ(widePath("\xF0\x9F\x8E\xAC!"), L"\U0001F3AC!");
  EXPECT_EQ(
      widePath("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
      L"\x7F\x80\u07FF\u0800\uFFFF\U00010000\U0010FFFF");
}

TEST(Utf8Path, IsTheWayBack) {
  const std::string path =
      "/a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
  EXPECT_EQ(utf8Path(widePath(path)), path);
  EXPECT_EQ(utf8Path({}), "");
}

TEST(Utf8Path, WritesAQuestionMarkForWhatIsNoCharacter) {
  for (const auto unit : {0xD800, 0xDBFF, 0xDC00, 0xDFFF})
    EXPECT_EQ(utf8Path({L'a', static_cast<wchar_t>(unit), L'b'}), "a?b") << unit;
  EXPECT_EQ(utf8Path({static_cast<wchar_t>(0xDC00), static_cast<wchar_t>(0xD800)}), "??");
  // Wider units than those of UTF-16 can hold what lies beyond the last character.
  if (sizeof(wchar_t) > 2) {
    const std::uint32_t beyond = 0x110000;
    EXPECT_EQ(utf8Path({static_cast<wchar_t>(beyond), static_cast<wchar_t>(-1)}), "??");
  }
}

TEST(WidePath, RefusesWhatIsNoText) {
  for (const char* path :
       {"\xFF", "\x80", "a\xC3", "\xC3(", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80",
        "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xE2\x82"})
    EXPECT_THROW(widePath(path), std::system_error) << path;
}

TEST(FilePath, KeepsTheCharacters) {
  EXPECT_TRUE(filePath("b\xC3\xA4r.npy").u8string() == u8"b\u00e4r.npy");
  EXPECT_EQ(fileText(filePath("b\xC3\xA4r/\xF0\x9F\x8E\xAC.npy")),
            "b\xC3\xA4r/\xF0\x9F\x8E\xAC.npy");
}

}  // namespace
}  // namespace vtlcmd::runner
