#include "execution/frame_printer.h"

#include <array>
#include <utility>

namespace vtlcmd::runner {
namespace {

/// Of more different problems the rest is told each time.
constexpr std::size_t mostProblems = 1000;

}  // namespace

FramePrinter::FramePrinter(const VtlCmdLogger& logger, std::int16_t verbosity,
                           MessagePrinter::Sinks sinks, Progress& progress, bool hasSeveralFrames)
    : verbosity_(verbosity),
      printer_(logger, verbosity, sinks, progress),
      hasSeveralFrames_(hasSeveralFrames) {}

void FramePrinter::print(const std::string& frame, const std::vector<LogMessage>& messages) {
  // Of the report and of problems.
  std::array<bool, 2> hasHead{};
  ++frames_;
  for (const LogMessage& message : messages) {
    if (!VtlCmdLogger::levelAdmits(verbosity_, std::uint32_t{message.level} - 1)) continue;
    const bool isProblem = message.level <= levelWarning;
    if (hasSeveralFrames_ && isProblem && isRepetition(message)) continue;
    bool& isHeaded = hasHead[isProblem ? 1 : 0];
    if (hasSeveralFrames_ && !isHeaded) printer_.printHead("Frame " + frame + ":", isProblem);
    isHeaded = true;
    printer_.print(message);
  }
  printer_.flush();
}

void FramePrinter::printCounts() {
  for (const auto& [problem, occurrence] : problems_) {
    if (occurrence.frames < 2) continue;
    const auto& [source, level, text] = problem;
    printer_.print({source, level, "In " + std::to_string(occurrence.frames) + " frames: " + text,
                    VtlCmdLogger::noCurrent, VtlCmdLogger::noCurrent});
  }
  printer_.flush();
}

bool FramePrinter::isRepetition(const LogMessage& message) {
  Problem problem{message.source, message.level, message.text};
  auto known = problems_.find(problem);
  if (known == problems_.end()) {
    if (problems_.size() == mostProblems) return false;
    known = problems_.emplace(std::move(problem), Occurrence{}).first;
  }
  Occurrence& occurrence = known->second;
  if (occurrence.last != frames_) ++occurrence.frames;
  occurrence.last = frames_;
  return occurrence.frames > 1;
}

}  // namespace vtlcmd::runner
