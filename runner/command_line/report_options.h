#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "execution/message_printer.h"
#include "execution/output_reporting.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace vtlcmd::runner {

/// The options of the commands that print a report.
class ReportOptions {
 public:
  void addTo(CLI::App& command);

  /// All throw UsageError for a value that makes no sense.
  std::uint32_t printLimit() const;
  std::uint32_t verbosity() const;

  OutputForm outputForm() const;
  std::filesystem::path plugInFile() const;
  /// Problems go to the standard error stream.
  MessagePrinter::Sinks sinks(TextSink report) const;

 private:
  std::string printLimit_ = "10";
  std::string verbosity_ = "progress";
  bool quiet_ = false;
  std::string through_ = "value";
  std::string plugIn_;
  std::string color_ = "auto";
};

/// Adds `--plugin` to a command.
CLI::Option* addPlugInOption(CLI::App& command, std::string& plugIn);

/// The file that `--plugin` names, else the program's own plug-in.
std::filesystem::path plugInFileFrom(const std::string& option);

}  // namespace vtlcmd::runner
