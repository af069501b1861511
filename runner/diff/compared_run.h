#pragma once

#include <memory>
#include <optional>
#include <string>

#include "text/json.h"

namespace vtlcmd::runner {

/// A frame of a run that is compared with another.
struct ComparedFrame {
  double number = 0;
  /// What its line in a journal tells; the same stands in reports.
  Json content;
};

/// A run that is compared with another, from its journal or its JSON report.
class ComparedRun {
 public:
  virtual ~ComparedRun() = default;

  /// What a journal's first line tells of the run.
  virtual const Json& run() const = 0;

  /// The next frame, by rising number; nothing at the end. Throws JournalError.
  virtual std::optional<ComparedFrame> next() = 0;
};

/// Opens a file of either kind, whatever its name. One frame at a time is in memory.
/// Throws JournalError when it is neither or can't be read.
std::unique_ptr<ComparedRun> openRun(const std::string& file);

}  // namespace vtlcmd::runner
