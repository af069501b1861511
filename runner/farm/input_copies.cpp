#include "farm/input_copies.h"

#include "text/path_text.h"

namespace vtlcmd::runner {

namespace fs = std::filesystem;

std::string relativeName(const std::string& file) {
  return fileText(fs::proximate(filePath(file)));
}

std::vector<fs::path> copyInputs(const FarmFolder& folder, const std::vector<fs::path>& files) {
  fs::create_directories(folder.copyOf(fs::current_path()));
  std::vector<fs::path> others;
  for (const fs::path& file : files) {
    if (file.is_absolute()) {
      others.push_back(file);
      continue;
    }
    const fs::path copy = folder.copyOf(fs::absolute(file));
    fs::create_directories(copy.parent_path());
    fs::copy_file(file, copy, fs::copy_options::skip_existing);
  }
  return others;
}

}  // namespace vtlcmd::runner
