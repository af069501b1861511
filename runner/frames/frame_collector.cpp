#include "frames/frame_collector.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "journal/journal_lines.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {
namespace {

/// In bytes: some thousand frames of usual graphs.
constexpr std::size_t mostWaiting = std::size_t{64} << 20U;

}  // namespace

FrameCollector::FrameCollector(const FrameList& frames, const FrameQueue& queue,
                               RunJournal* journal, FramePrinter& printer, Progress& progress,
                               std::ostream& report, Settings settings)
    : frames_(frames),
      order_(queue),
      journal_(journal),
      printer_(printer),
      progress_(progress),
      report_(report),
      settings_(std::move(settings)) {}

void FrameCollector::begin(std::size_t place, unsigned worker) {
  const double frame = frames_[place];
  if (journal_ != nullptr)
    journal_->startFrame(frames_.placeInWhole(place), shortestText(frame), worker);
  progress_.beginFrame(taken_, frame);
}

bool FrameCollector::take(FinishedFrame frame) {
  ++taken_;
  if (!settings_.failFast) keep(frame);
  if (!hasEnded_ && order_.takeTurn(frame.place)) {
    show(frame);
  } else {
    order_.add(std::move(frame));
  }
  while (!hasEnded_) {
    const std::optional<FinishedFrame> next = order_.next();
    if (!next) break;
    show(*next);
  }
  return !hasEnded_ && !journalError_;
}

void FrameCollector::takeNoMore() {
  while (!hasEnded_) {
    const std::optional<FinishedFrame> next = order_.nextPresent();
    if (!next) return;
    show(*next);
  }
}

bool FrameCollector::isFull() const { return order_.size() > mostWaiting; }

/// What can't be kept is printed all the same.
void FrameCollector::keep(const FinishedFrame& frame) {
  if (journal_ == nullptr || journalError_) return;
  try {
    journal_->addFrame(frame.content, frameTimes(frame.outcome));
  } catch (const std::system_error& error) {
    journalError_ = error;
  }
}

/// The frame is in the journal before anyone reads of it.
void FrameCollector::show(const FinishedFrame& frame) {
  if (settings_.failFast) keep(frame);
  totals_.failure = std::max(totals_.failure, frame.outcome.failure);
  totals_.errors += frame.outcome.errors;
  totals_.warnings += frame.outcome.warnings;
  settings_.onFrame(frame.outcome);
  if (!frame.said.empty()) {
    progress_.hide();
    std::cerr << frame.said << std::flush;
    progress_.show();
  }
  printer_.print(frame.outcome.frameText, frame.messages);
  hasEnded_ =
      !report_.good() || journalError_ || (settings_.failFast && !frame.outcome.succeeded());
}

}  // namespace vtlcmd::runner
