#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "report/line_plot.h"
#include "report/page_frame.h"

namespace vtlcmd::runner {

/// How long the frames of a run took, by who ran them, in a page.
class DurationTimeline {
 public:
  /// `frameCount` is that of the whole job. `host` ran the frames that name none.
  DurationTimeline(std::uint64_t frameCount, std::string host);

  void add(const PageFrame& frame);

  /// `frames` are those of the job. Nothing when no frame has a duration.
  void write(std::ostream& page, const FrameRange& frames) const;

  /// Of all frames, in seconds.
  double total() const noexcept { return total_; }

 private:
  /// The longest frame of a stretch.
  struct Bar {
    std::uint64_t stretch;
    double frame;
    double seconds;
    bool failed;
  };
  struct Lane {
    std::vector<Bar> bars;
    std::uint64_t frames = 0;
    std::uint64_t failed = 0;
    double total = 0;
    double longest = 0;
    std::string longestFrame;

    void add(const Bar& bar, const std::string& frame);
  };

  /// By host, and by host and worker.
  using Lanes = std::map<std::string, Lane>;

  const Lanes& lanes() const;
  static void writeLaneHead(std::ostream& page, const std::string& name, const Lane& lane);
  void writeLane(std::ostream& page, const std::string& name, const Lane& lane, const Axis& x,
                 const Axis& y) const;

  std::string host_;
  std::uint64_t stretch_;
  std::uint64_t stretches_;
  double total_ = 0;
  Lanes all_;
  Lanes byHost_;
  Lanes byWorker_;
};

/// A duration in the unit that suits it: "850 µs", "12.3 ms", "4.5 s", "3 min 12 s", "2 h 5 min".
std::string durationText(double seconds);

}  // namespace vtlcmd::runner
