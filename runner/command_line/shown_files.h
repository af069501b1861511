#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "execution/frame_record.h"
#include "execution/output_reporting.h"
#include "execution/plug_in.h"
#include "readers/data_file.h"
#include "values/value_type.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// What is known of a data file without its values.
struct ShownFile {
  struct Value {
    /// FILE, or FILE/NAME for one of several in a file.
    std::string name;
    ValueType type;
    /// Of an array.
    std::optional<NpyFacts> facts;
  };

  std::string file;
  std::vector<Value> values;
  /// Its warnings and errors.
  MessagesBySource problems;
};

/// Data files that go through the output report one after the other, all as outputs of one frame.
/// A file's values end with its turn.
class ShownFiles {
 public:
  /// What users want to see of files.
  struct Form {
    OutputForm output = OutputForm::value;
    NpyForm array;
    /// The frame is to have the values' exact forms.
    bool exactValues = false;
  };

  /// Both must outlive this.
  ShownFiles(const PlugIn::Translation& translation, VtlCmdLogger& logger, Form form);

  /// Has a file reported; "-" is an array from the standard input. What goes wrong is in the
  /// logger.
  void add(const std::string& file);

  /// The files behind those so far aren't shown.
  void stop() noexcept { allRead_ = false; }

  /// The frame of all files so far. Called once, in the end.
  FrameRecord takeFrame();

  /// Whether everything was read and reported.
  bool isComplete() const noexcept { return allRead_ && allReported_; }
  const std::vector<ShownFile>& files() const noexcept { return files_; }

 private:
  void report(ShownFile& shown, const DataValue& data);
  void note(LogLevel level, const std::string& text);

  const PlugIn::Translation& translation_;
  VtlCmdLogger& logger_;
  Form form_;
  PortValueMap noTexts_;
  RunContext context_;
  GroupScope group_;
  EntryScope entry_;
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
  FrameRecord frame_;
  std::vector<ShownFile> files_;
  bool allRead_ = true;
  bool allReported_ = true;
};

}  // namespace vtlcmd::runner
