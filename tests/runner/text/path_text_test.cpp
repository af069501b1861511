#include "text/path_text.h"

#include <gtest/gtest.h>
#include <system_error>

namespace vtlcmd {
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
  EXPECT_EQ(utf8Path(L""), "");
}

TEST(Utf8Path, WritesAQuestionMarkForWhatIsNoCharacter) {
  const HostPath path{L'a', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000),
                      static_cast<wchar_t>(-1)};
  EXPECT_EQ(utf8Path(path), "a???");
}

TEST(WidePath, RefusesWhatIsNoText) {
  for (const char* path :
       {"\xFF", "\x80", "a\xC3", "\xC3(", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80",
        "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xE2\x82"})
    EXPECT_THROW(widePath(path), std::system_error) << path;
}

}  // namespace
}  // namespace vtlcmd
