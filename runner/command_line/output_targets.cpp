#include "command_line/output_targets.h"

#include <algorithm>
#include <system_error>

#include "command_line/usage_error.h"
#include "report/whole_file.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

bool holds(const std::vector<fs::path>& files, const fs::path& file) {
  return std::any_of(files.begin(), files.end(),
                     [&](const fs::path& other) { return areSameFile(file, other); });
}

/// Opening a pipe or a device would be noticed at its other end.
bool isPlainOrAbsent(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  return !fs::exists(status) || fs::is_regular_file(status) || fs::is_directory(status);
}

}  // namespace

bool areSameFile(const fs::path& a, const fs::path& b) {
  std::error_code error;
  const fs::file_status status = fs::status(a, error);
  if (fs::exists(status)) return fs::is_regular_file(status) && fs::equivalent(a, b, error);
  // A relative path may stay one where nothing is there yet.
  return fs::weakly_canonical(fs::absolute(a, error), error) ==
         fs::weakly_canonical(fs::absolute(b, error), error);
}

void OutputTargets::add(const std::string& option, const std::string& target) {
  if (target.empty()) throw UsageError(option + " wants the name of a file, not ''");
  if (target == standardOutput) {
    if (takesOutput_) throw UsageError(option + ": only one document fits the standard output");
    takesOutput_ = true;
    return;
  }
  const fs::path file = filePath(target);
  if (holds(inputs_, file))
    throw UsageError(option + ": " + inQuotes(target) + " is a file that this command reads");
  if (holds(targets_, file))
    throw UsageError(option + ": " + inQuotes(target) + " would be written twice");
  targets_.push_back(file);
  try {
    if (isPlainOrAbsent(file)) WholeFile::check(file);
  } catch (const std::system_error& error) {
    throw UsageError(option + ": " + inQuotes(target) + " can't be written: " + reasonOf(error));
  }
}

}  // namespace vtlcmd::runner
