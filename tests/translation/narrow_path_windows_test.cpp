#include <gtest/gtest.h>
#include <system_error>
#include <windows.h>

#include "vtlcmd/translation/scene_path.h"

namespace vtlcmd {
namespace {

/// The texts below are those of western European systems.
class NarrowPath : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(GetACP(), 1252U);
    ASSERT_EQ(GetOEMCP(), 437U);
  }
  ~NarrowPath() override { SetFileApisToANSI(); }
};

void expectRefused(const HostPath& path) {
  try {
    const std::string text = narrowPath(path);
    ADD_FAILURE() << text;
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), std::error_code(ERROR_NO_UNICODE_TRANSLATION, std::system_category()));
  }
}

TEST_F(NarrowPath, IsInTheCodePageOfTheFileFunctions) {
  EXPECT_EQ(narrowPath(L""), "");
  EXPECT_EQ(narrowPath(L"C:\\plain"), "C:\\plain");
  EXPECT_EQ(narrowPath(L"b\u00e4r"), "b\xe4r");
  EXPECT_EQ(narrowPath(L"\u20ac"), "\x80");
  EXPECT_EQ(narrowPath(HostPath(L"a\0b", 3)), std::string("a\0b", 3));
  SetFileApisToOEM();
  EXPECT_EQ(narrowPath(L"b\u00e4r"), "b\x84r");
  EXPECT_EQ(narrowPath(L"\u2592"), "\xb1");
}

TEST_F(NarrowPath, RaisesForWhatTheCodePageLacks) {
  expectRefused(L"a\u2192b");
  expectRefused(L"\u2592");
  expectRefused(L"\U0001F3AC");
  for (const int unit : {0xD800, 0xDBFF, 0xDC00, 0xDFFF})
    expectRefused({L'a', static_cast<wchar_t>(unit), L'b'});
  SetFileApisToOEM();
  expectRefused(L"\u20ac");
}

TEST_F(NarrowPath, TakesNoLookAlike) {
  // Code page 1252 would write the letter without its bar, and the narrow form of the wide letter.
  expectRefused(L"\u0100");
  expectRefused(L"\uff21");
  SetFileApisToOEM();
  expectRefused(L"\u00c3");
}

}  // namespace
}  // namespace vtlcmd
