#pragma once

#include <istream>
#include <nlohmann/json.hpp>
#include <optional>

#include "text/json_scanner.h"

namespace vtlcmd::runner {

/// Reads the JSON report of a run, of which only a frame at a time is in memory.
class ReportFrames {
 public:
  /// The stream can be read twice, and must outlive this. Throws JsonScanError or
  /// nlohmann::json::exception for a document that is no report.
  explicit ReportFrames(std::istream& stream);

  /// The member of that name.
  const nlohmann::ordered_json& run() const noexcept { return run_; }

  /// The frame that is listed next; nothing at the end. Throws nlohmann::json::exception.
  std::optional<nlohmann::ordered_json> next();

 private:
  JsonScanner scanner_;
  nlohmann::ordered_json run_;
  bool isFirst_ = true;
};

}  // namespace vtlcmd::runner
