#include "farm/farm_folder.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

/// The numbers in a name like "1-7-2".
std::vector<std::size_t> numbersIn(const std::string& name) {
  std::vector<std::size_t> numbers;
  const char* place = name.data();
  const char* const end = place + name.size();
  while (place < end) {
    std::size_t number = 0;
    const auto [stop, error] = std::from_chars(place, end, number);
    if (error != std::errc()) break;
    numbers.push_back(number);
    place = stop == end ? end : stop + 1;
  }
  return numbers;
}

}  // namespace

fs::path FarmFolder::copyOf(const fs::path& absolute) const {
  return (inputs() / absolute.relative_path()).lexically_normal();
}

fs::path FarmFolder::submission(std::size_t number) const {
  return path_ / "submissions" / std::to_string(number);
}

std::size_t FarmFolder::submissions() const {
  std::size_t count = 0;
  std::error_code ignored;
  while (fs::exists(submission(count + 1), ignored)) ++count;
  return count;
}

std::vector<fs::path> FarmFolder::journalFiles() const {
  std::vector<std::pair<std::vector<std::size_t>, fs::path>> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(journals())) {
    if (entry.path().extension() == ".journal")
      files.emplace_back(numbersIn(fileText(entry.path().stem())), entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<fs::path> sorted;
  sorted.reserve(files.size());
  for (auto& [numbers, file] : files) sorted.push_back(std::move(file));
  return sorted;
}

}  // namespace vtlcmd::runner
