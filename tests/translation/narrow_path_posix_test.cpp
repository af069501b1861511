#include <gtest/gtest.h>
#include <system_error>

#include "vtlcmd/translation/scene_path.h"

namespace vtlcmd {
namespace {

HostPath wide(char32_t code) { return HostPath(1, static_cast<wchar_t>(code)); }

TEST(NarrowPath, IsUtf8) {
  EXPECT_EQ(narrowPath(L""), "");
  EXPECT_EQ(narrowPath(L"plain"), "plain");
  EXPECT_EQ(narrowPath(wide(0x7F)), "\x7f");
  EXPECT_EQ(narrowPath(wide(0x80)), "\xc2\x80");
  EXPECT_EQ(narrowPath(wide(0x7FF)), "\xdf\xbf");
  EXPECT_EQ(narrowPath(wide(0x800)), "\xe0\xa0\x80");
  EXPECT_EQ(narrowPath(wide(0xD7FF)), "\xed\x9f\xbf");
  EXPECT_EQ(narrowPath(wide(0xE000)), "\xee\x80\x80");
  EXPECT_EQ(narrowPath(wide(0xFFFF)), "\xef\xbf\xbf");
  EXPECT_EQ(narrowPath(wide(0x10000)), "\xf0\x90\x80\x80");
  EXPECT_EQ(narrowPath(wide(0x10FFFF)), "\xf4\x8f\xbf\xbf");
  EXPECT_EQ(narrowPath(wide(0x80) + wide(0x800) + wide(0x10000) + L"z"),
            "\xc2\x80\xe0\xa0\x80\xf0\x90\x80\x80z");
}

TEST(NarrowPath, RaisesForWhatNoTextCanExpress) {
  for (const char32_t code : {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
    EXPECT_THROW(narrowPath(L"a" + wide(code)), std::system_error)
        << static_cast<std::uint32_t>(code);
  }
}

}  // namespace
}  // namespace vtlcmd
