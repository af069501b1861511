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
    : logger_(logger),
      verbosity_(verbosity),
      printer_(logger, verbosity, sinks, progress),
      hasSeveralFrames_(hasSeveralFrames) {}

void FramePrinter::print(const FrameRecord& frame) {
  // Of the report and of problems.
  std::array<bool, 2> hasHead{};
  for (std::size_t i = 0; i < logger_.messages.size(); ++i) {
    const LogMessage& message = logger_.messages[i];
    if (!VtlCmdLogger::levelAdmits(verbosity_, std::uint32_t{message.level} - 1)) continue;
    if (i < frame.inputMessages && isRepetition(message)) continue;
    const bool isProblem = message.level <= levelWarning;
    bool& isHeaded = hasHead[isProblem ? 1 : 0];
    if (hasSeveralFrames_ && !isHeaded) {
      printer_.printLine(VtlCmdLogger::makeMessagePrefix(vtlcmdSource, levelProgress),
                         "Frame " + frame.entry.frameText + ":", isProblem);
    }
    isHeaded = true;
    printer_.print(message);
  }
  printer_.flush();
}

void FramePrinter::printCounts() {
  for (const auto& [problem, count] : problems_) {
    if (count < 2) continue;
    const auto& [source, level, text] = problem;
    printer_.print({source, level, "In " + std::to_string(count) + " frames: " + text,
                    VtlCmdLogger::noCurrent, VtlCmdLogger::noCurrent});
  }
  printer_.flush();
}

bool FramePrinter::isRepetition(const LogMessage& message) {
  if (message.level > levelError) return false;
  Problem problem{message.source, message.level, message.text};
  const auto known = problems_.find(problem);
  if (known != problems_.end()) {
    ++known->second;
    return true;
  }
  if (problems_.size() < mostProblems) problems_.emplace(std::move(problem), 1);
  return false;
}

}  // namespace vtlcmd::runner
