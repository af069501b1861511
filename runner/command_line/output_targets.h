#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "execution/frame_list.h"
#include "saving/frame_file_name.h"

namespace vtlcmd::runner {

/// Whether both names lead to one plain file, be it there already or not.
bool areSameFile(const std::filesystem::path& a, const std::filesystem::path& b);

/// The files that a command is to write, held against what it reads and against each other, so that
/// nothing is lost and everything that can be refused is refused before the work begins. Files are
/// compared by what they are, not by name.
class OutputTargets {
 public:
  /// What stands for the standard output where a file is wanted.
  static constexpr const char* standardOutput = "-";

  /// `inputs`: the files that the command reads.
  explicit OutputTargets(std::vector<std::filesystem::path> inputs) : inputs_(std::move(inputs)) {}

  /// Takes in the target that `option` names: a file or `-`. Throws UsageError for an empty name, a
  /// file that the command reads or that is a target already, and one that can't be written, with
  /// the system's reason. Leaves the file system as it is.
  void add(const std::string& option, const std::string& target);

  /// Takes in a target a frame, as `add` does. To be called when all single targets are added.
  void addSeries(const std::string& option, const FrameFileName& target, const FrameList& frames);

 private:
  std::vector<std::filesystem::path> inputs_;
  std::vector<std::filesystem::path> targets_;
  /// By `fileIdentity`, the series that a file belongs to, and its name.
  std::map<std::filesystem::path, std::pair<std::size_t, std::string>> ofSeries_;
  std::size_t series_ = 0;
  bool takesOutput_ = false;
};

}  // namespace vtlcmd::runner
