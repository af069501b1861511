#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "report/frame_facts.h"

namespace vtlcmd::runner {

/// All frames that the runs of a report were to run. Runs that are parts of one job have its
/// frames. The frames of others are put together, each once, in the order of their numbers.
class Job {
 public:
  /// `texts` are what the runs name as their jobs. Throws FrameListError.
  explicit Job(std::set<std::string> texts = {});

  std::size_t size() const noexcept { return frames_.size(); }

  /// As one job has them, else as short as can be.
  std::string framesText() const;

  /// Where a frame stands in the job. Nothing when the job lacks it.
  std::optional<std::size_t> indexOf(const FrameFacts& frame) const;

  /// The index of the frame whose number has this place among all, and that number.
  std::size_t indexAt(std::size_t place) const {
    return indexes_.empty() ? place : indexes_[place];
  }
  double frameAt(std::size_t place) const { return frames_[place]; }

  /// Whether the runs tell other indexes than the job has.
  bool isPutTogether() const noexcept { return texts_.size() > 1; }

 private:
  std::set<std::string> texts_;
  /// Sorted.
  std::vector<double> frames_;
  /// By place; empty where a frame's place is its index.
  std::vector<std::uint32_t> indexes_;
};

}  // namespace vtlcmd::runner
