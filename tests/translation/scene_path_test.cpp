#include "vtlcmd/translation/scene_path.h"

#include <gtest/gtest.h>

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
           {L"\\\\\\scene.vs", L"\\\\\\", L"scene.vs"},
           {L"//\\scene.vs", L"//\\", L"scene.vs"},
           {L"\\\\/scene.vs", L"\\\\/", L"scene.vs"},
           {L"//a/b", L"//a/b", L""},
           {L"\\\\a\\b\\scene.vs", L"\\\\a\\b\\", L"scene.vs"},
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
           {L"\\\\s\\share\\scene.vs", L"\\\\s\\share\\", L"scene.vs"},
           {L"\\\\s\\share", L"\\\\s\\share", L""},
           {L"\\\\s", L"\\\\s", L""},
           {L"\\\\?x\\share", L"\\\\?x\\share", L""},
           {L"\\\\.x\\share", L"\\\\.x\\share", L""},
           {L"\\\\.server\\share", L"\\\\.server\\share", L""},
           {L"\\\\?server\\share", L"\\\\?server\\share", L""},
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

TEST(SplitScenePath, TakesTheLettersOfTheAlphabetForDrives) {
  for (const wchar_t letter : {L'A', L'Z', L'a', L'z'}) {
    const ScenePath split = splitScenePath({letter, L':', L's'});
    EXPECT_EQ(split.directory, (HostPath{letter, L':'}));
    EXPECT_EQ(split.fileName, L"s");
  }
  // The neighbours of the two alphabets, and a letter with an accent.
  for (const wchar_t other : {L'@', L'[', L'`', L'{', L'\u00e9'}) {
    const HostPath path{other, L':', L's'};
    const ScenePath split = splitScenePath(path);
    EXPECT_EQ(split.directory, L"");
    EXPECT_EQ(split.fileName, path);
  }
}

}  // namespace
}  // namespace vtlcmd
