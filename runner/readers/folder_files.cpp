#include "readers/folder_files.h"

#include <algorithm>

#include "readers/input_file.h"
#include "readers/read_error.h"
#include "text/library_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

namespace fs = std::filesystem;

FolderFiles::FolderFiles(const fs::path& mesh, bool anywhere)
    : folders_{fs::weakly_canonical(fs::absolute(mesh).parent_path()),
               fs::weakly_canonical(mesh).parent_path()},
      anywhere_(anywhere) {}

bool FolderFiles::isInside(const fs::path& file) const {
  const fs::path target = fs::weakly_canonical(fs::absolute(file));
  return std::any_of(folders_.begin(), folders_.end(), [&](const fs::path& folder) {
    const auto [end, unused] =
        std::mismatch(folder.begin(), folder.end(), target.begin(), target.end());
    return end == folder.end();
  });
}

bool FolderFiles::Exists(const char* name) const {
  const fs::path file = filePath(name);
  std::error_code error;
  if (!fs::exists(file, error)) return false;
  if (!anywhere_ && !isInside(file)) {
    if (refusal_.empty()) {
      refusal_ = "it names " + inQuotes(name) +
                 ", which is outside its folder (--read-anywhere allows that)";
    }
    return false;
  }
  try {
    requireRegularFile(file);
  } catch (const ReadError& reason) {
    if (refusal_.empty()) refusal_ = "it names " + inQuotes(name) + ": " + reason.what();
    return false;
  }
  return true;
}

Assimp::IOStream* FolderFiles::Open(const char* name, const char* mode) {
  if (mode[0] != 'r') return nullptr;
  return Exists(name) ? DefaultIOSystem::Open(name, mode) : nullptr;
}

}  // namespace vtlcmd::runner
