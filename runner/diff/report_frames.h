#pragma once

#include <istream>
#include <optional>

#include "text/json.h"
#include "text/json_scanner.h"

namespace vtlcmd::runner {

/// Reads the JSON report of a run, of which only a frame at a time is in memory.
class ReportFrames {
 public:
  /// The stream can be read twice, and must outlive this. Throws JsonScanError or
  /// nlohmann::json::exception for a document that is no report.
  explicit ReportFrames(std::istream& stream);

  /// The member of that name.
  const Json& run() const noexcept { return run_; }

  /// The frame that is listed next; nothing at the end. Throws nlohmann::json::exception.
  std::optional<Json> next();

 private:
  JsonScanner scanner_;
  Json run_;
  bool isFirst_ = true;
};

}  // namespace vtlcmd::runner
