#include "vtlcmd/translation/scene_path.h"

#include <algorithm>

namespace vtlcmd {
namespace {

constexpr const wchar_t* separators = L"\\/";

bool isSeparator(wchar_t character) { return character == L'\\' || character == L'/'; }

bool isLetter(wchar_t character) {
  return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

/// The position behind the next component at or after `position`, its separator not included.
std::size_t componentEnd(const HostPath& path, std::size_t position) {
  return std::min(path.find_first_of(separators, position), path.size());
}

/// The length of the root name; a separator behind it cuts like any other.
std::size_t rootLength(const HostPath& path) {
  if (path.size() >= 2 && isLetter(path[0]) && path[1] == L':') return 2;
  const bool twoSeparators =
      path.size() >= 3 && isSeparator(path[0]) && isSeparator(path[1]) && !isSeparator(path[2]);
  if (!twoSeparators) return 0;
  const std::size_t serverEnd = componentEnd(path, 2);
  if (serverEnd == 3 && (path[2] == L'?' || path[2] == L'.')) return serverEnd;
  return serverEnd == path.size() ? serverEnd : componentEnd(path, serverEnd + 1);
}

}  // namespace

ScenePath splitScenePath(const HostPath& path) {
  const std::size_t root = rootLength(path);
  const std::size_t last = path.find_last_of(separators);
  const std::size_t cut = last == HostPath::npos || last < root ? root : last + 1;
  return {path.substr(0, cut), path.substr(cut)};
}

}  // namespace vtlcmd
