#include "command_line/output_targets.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "command_line/usage_error.h"
#include "platform/file_identity.h"
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

void requireWritable(const std::string& option, const std::string& target, const fs::path& file) {
  try {
    if (isPlainOrAbsent(file)) WholeFile::check(file);
  } catch (const std::system_error& error) {
    throwIfOutOfMemory(error);
    throw UsageError(option + ": " + inQuotes(target) + " can't be written: " + reasonOf(error));
  }
}

[[noreturn]] void refuseInput(const std::string& option, const std::string& target) {
  throw UsageError(option + ": " + inQuotes(target) + " is a file that this command reads");
}

[[noreturn]] void refuseTwice(const std::string& option, const std::string& target) {
  throw UsageError(option + ": " + inQuotes(target) + " would be written twice");
}

/// Files that many others are compared with.
class FileSet {
 public:
  explicit FileSet(const std::vector<fs::path>& files) : files_(files) {
    for (const fs::path& file : files) identities_.insert(fileIdentity(file));
  }

  bool holds(const fs::path& file, const fs::path& identity) const {
    std::error_code ignored;
    return identities_.contains(identity) ||
           (fs::exists(file, ignored) && runner::holds(files_, file));
  }

 private:
  const std::vector<fs::path>& files_;
  std::set<fs::path> identities_;
};

}  // namespace

bool areSameFile(const fs::path& a, const fs::path& b) {
  std::error_code error;
  const fs::file_status status = fs::status(a, error);
  if (fs::exists(status)) return fs::is_regular_file(status) && fs::equivalent(a, b, error);
  return fileIdentity(a) == fileIdentity(b);
}

void OutputTargets::add(const std::string& option, const std::string& target) {
  if (target.empty()) throw UsageError(option + " wants the name of a file, not ''");
  if (target == standardOutput) {
    if (takesOutput_) throw UsageError(option + ": only one document fits the standard output");
    takesOutput_ = true;
    return;
  }
  const fs::path file = filePath(target);
  if (holds(inputs_, file)) refuseInput(option, target);
  if (holds(targets_, file)) refuseTwice(option, target);
  targets_.push_back(file);
  requireWritable(option, target, file);
}

void OutputTargets::addSeries(const std::string& option, const FrameFileName& target,
                              const FrameList& frames) {
  const FileSet inputs(inputs_);
  const FileSet targets(targets_);
  std::set<fs::path> folders;
  ++series_;
  for (std::size_t i = 0; i < frames.size(); ++i) {
    const std::string name = target.at(frames[i]);
    const fs::path file = filePath(name);
    const fs::path identity = fileIdentity(file);
    if (inputs.holds(file, identity)) refuseInput(option, name);
    // A frame that runs twice writes the same again.
    const std::pair owner(series_, name);
    const bool isTaken = ofSeries_.try_emplace(identity, owner).first->second != owner;
    if (isTaken || targets.holds(file, identity)) refuseTwice(option, name);
    std::error_code ignored;
    const bool isAbsent = !fs::exists(fs::symlink_status(file, ignored));
    if (folders.insert(file.parent_path()).second || !isAbsent) requireWritable(option, name, file);
  }
}

}  // namespace vtlcmd::runner
