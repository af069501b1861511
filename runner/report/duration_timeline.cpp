#include "report/duration_timeline.h"

#include <cmath>
#include <ostream>

#include "report/frame_ranges.h"
#include "report/html_text.h"
#include "text/json_text.h"

namespace vtlcmd::runner {
namespace {

/// Bars that a picture has room for.
constexpr std::uint64_t mostBars = 400;
/// Of more workers each host's are drawn together, of more hosts all.
constexpr std::size_t mostLanes = 16;

// In units of the picture's own coordinates, which the page stretches to the room that there is.
constexpr double timelineWidth = 1000;
constexpr double timelineHeight = 100;

std::string rounded(double number) { return shortNumber(number, 3); }

}  // namespace

std::string durationText(double seconds) {
  if (seconds < 1e-3) return rounded(seconds * 1e6) + " µs";
  if (seconds < 1) return rounded(seconds * 1e3) + " ms";
  if (seconds < 60) return rounded(seconds) + " s";
  const auto whole = static_cast<std::uint64_t>(std::llround(seconds));
  if (whole < 3600) return std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
  return groupedDigits(whole / 3600) + " h " + std::to_string(whole / 60 % 60) + " min";
}

void DurationTimeline::Lane::add(const Bar& bar, const std::string& frame) {
  ++frames;
  if (bar.failed) ++failed;
  total += bar.seconds;
  if (bar.seconds > longest || frames == 1) {
    longest = bar.seconds;
    longestFrame = frame;
  }
  if (bars.empty() || bars.back().stretch != bar.stretch) {
    bars.push_back(bar);
    return;
  }
  bars.back().failed |= bar.failed;
  bars.back().seconds = std::max(bars.back().seconds, bar.seconds);
}

DurationTimeline::DurationTimeline(std::uint64_t frameCount, std::string host)
    : host_(std::move(host)),
      stretch_((frameCount + mostBars - 1) / mostBars),
      stretches_(stretch_ == 0 ? 0 : (frameCount + stretch_ - 1) / stretch_) {}

void DurationTimeline::add(const PageFrame& frame) {
  if (!frame.times.is_object() || !frame.times.contains("seconds")) return;
  const Bar bar{frame.index / stretch_, frame.number, frame.times["seconds"],
                !frame.content.at("succeeded").get<bool>()};
  total_ += bar.seconds;
  const std::string host = frame.times.value("host", host_);
  all_[""].add(bar, frame.text);
  // Where there are too many to be drawn, they needn't be kept.
  if (byHost_.size() <= mostLanes) byHost_[host].add(bar, frame.text);
  if (byWorker_.size() > mostLanes) return;
  const auto worker = frame.times.find("worker");
  const std::string name =
      worker == frame.times.end() ? host : host + " · worker " + plainText(*worker);
  byWorker_[name].add(bar, frame.text);
}

const DurationTimeline::Lanes& DurationTimeline::lanes() const {
  if (byWorker_.size() <= mostLanes) return byWorker_;
  return byHost_.size() <= mostLanes ? byHost_ : all_;
}

void DurationTimeline::write(std::ostream& page, const FrameRange& frames) const {
  if (all_.empty()) return;
  const Lane& all = all_.at("");
  page << "<section><h2>Durations</h2>\n<p class='facts'>" << counted(all.frames, "frame") << " in "
       << durationText(all.total) << ", "
       << durationText(all.total / static_cast<double>(all.frames)) << " a frame; the longest, "
       << htmlText(all.longestFrame) << ", took " << durationText(all.longest) << "</p>\n";
  if (all.frames > 1) {
    const Axis x = frames.axis();
    const Axis y = Axis::rounded(0, all.longest, 2);
    page << "<div class='lanes'>\n";
    for (const auto& [name, lane] : lanes()) writeLane(page, name, lane, x, y);
    page << "<div class='plot'>" << bottomLabelsHtml(x) << "</div></div>\n";
  }
  page << "</section>\n";
}

void DurationTimeline::writeLane(std::ostream& page, const std::string& name, const Lane& lane,
                                 const Axis& x, const Axis& y) const {
  const double barWidth = timelineWidth / static_cast<double>(stretches_);
  const std::string thickness = shortNumber(barWidth * (barWidth > 8 ? 0.8 : 1), 4);
  std::string passed;
  std::string failed;
  for (const Bar& bar : lane.bars) {
    const double left = x.share(bar.frame) * (timelineWidth - barWidth);
    const std::string top = shortNumber(y.share(bar.seconds) * timelineHeight, 4);
    std::string& data = bar.failed ? failed : passed;
    data.append("M").append(shortNumber(left, 5)).append(" 100v-").append(top);
    data.append("h").append(thickness).append("v").append(top).append("z");
  }
  if (lanes().size() > 1) writeLaneHead(page, name, lane);
  page << "<div class='plot'><div class='y'><span style='top:0'>" << durationText(y.high())
       << "</span></div><svg viewBox='0 0 1000 100' preserveAspectRatio='none' "
          "role='img' aria-label='durations'><path class='grid' d='M0 0H1000M0 100H1000'/>"
          "<path class='bars' d='"
       << passed << "'/><path class='bars bad' d='" << failed << "'/></svg></div>\n";
}

void DurationTimeline::writeLaneHead(std::ostream& page, const std::string& name,
                                     const Lane& lane) {
  page << "<div class='lane'><b>" << htmlText(name) << "</b> <span class='facts'>"
       << counted(lane.frames, "frame") << ", " << durationText(lane.total) << ", "
       << durationText(lane.total / static_cast<double>(lane.frames)) << " a frame";
  if (lane.failed > 0)
    page << ", <span class='failed'>" << groupedDigits(lane.failed) << " failed</span>";
  page << "</span></div>\n";
}

}  // namespace vtlcmd::runner
