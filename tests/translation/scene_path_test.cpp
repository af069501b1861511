#include "translation/scene_path.h"

#include <gtest/gtest.h>
#include <system_error>

namespace vtlcmd {
namespace {

struct Split {
  const wchar_t* path;
  const wchar_t* directory;
  const wchar_t* fileName;
};

TEST(SplitScenePath, CutsBehindTheLastSeparatorOrTheRoot) {
  for (const Split& row : {
           Split{L"", L"", L""},
           {L"scene.vs", L"", L"scene.vs"},
           {L"dir/scene.vs", L"dir/", L"scene.vs"},
           {L"dir\\scene.vs", L"dir\\", L"scene.vs"},
           {L"a/b\\c/scene.vs", L"a/b\\c/", L"scene.vs"},
           {L"a/b/", L"a/b/", L""},
           {L"a/b\\", L"a/b\\", L""},
           {L"a//", L"a//", L""},
           {L"/", L"/", L""},
           {L"\\", L"\\", L""},
           {L"/scene.vs", L"/", L"scene.vs"},
           {L"///scene.vs", L"///", L"scene.vs"},
           {L".", L"", L"."},
           {L"..", L"", L".."},
           {L"a/..", L"a/", L".."},
           {L".hidden", L"", L".hidden"},
           {L"C:", L"C:", L""},
           {L"C:scene.vs", L"C:", L"scene.vs"},
           {L"C:\\", L"C:\\", L""},
           {L"C:/", L"C:/", L""},
           {L"C:\\scene.vs", L"C:\\", L"scene.vs"},
           {L"z:dir\\scene.vs", L"z:dir\\", L"scene.vs"},
           {L"1:scene.vs", L"", L"1:scene.vs"},
           {L"CC:scene.vs", L"", L"CC:scene.vs"},
           {L"\\\\server", L"\\\\server", L""},
           {L"\\\\server\\", L"\\\\server\\", L""},
           {L"\\\\server\\share", L"\\\\server\\share", L""},
           {L"//server/share", L"//server/share", L""},
           {L"\\\\server\\share\\", L"\\\\server\\share\\", L""},
           {L"\\\\server\\share\\scene.vs", L"\\\\server\\share\\", L"scene.vs"},
           {L"\\\\server\\share\\dir\\scene.vs", L"\\\\server\\share\\dir\\", L"scene.vs"},
           {L"\\\\?\\", L"\\\\?\\", L""},
           {L"\\\\?\\scene.vs", L"\\\\?\\", L"scene.vs"},
           {L"\\\\?\\C:\\scene.vs", L"\\\\?\\C:\\", L"scene.vs"},
           {L"\\\\?\\C:\\dir\\scene.vs", L"\\\\?\\C:\\dir\\", L"scene.vs"},
           {L"\\\\.\\scene.vs", L"\\\\.\\", L"scene.vs"},
       }) {
    const ScenePath split = splitScenePath(row.path);
    EXPECT_EQ(split.directory, row.directory) << ::testing::PrintToString(row.path);
    EXPECT_EQ(split.fileName, row.fileName) << ::testing::PrintToString(row.path);
  }
}

#if !defined(_WIN32)

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
}

TEST(NarrowPath, RaisesForWhatNoTextCanExpress) {
  for (const char32_t code : {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
    EXPECT_THROW(narrowPath(L"a" + wide(code)), std::system_error)
        << static_cast<std::uint32_t>(code);
  }
}

#endif

}  // namespace
}  // namespace vtlcmd
