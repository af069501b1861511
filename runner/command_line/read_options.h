#pragma once

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace vtlcmd::runner {

/// The options of the commands that read data files and build values: what that may take.
class ReadOptions {
 public:
  void addTo(CLI::App& command);

  /// Limits this process, one of so many that share what there is, and the readers that it starts.
  /// To be called once, when the command line has been read and before any file. Throws UsageError
  /// for a value that makes no sense.
  void apply(unsigned processes = 1) const;

 private:
  std::optional<std::string> memoryLimit_;
  std::string readMemory_ = "4G";
  std::string readProcessorTime_ = "120";
  std::string readTime_ = "600";
  bool readAnywhere_ = false;
};

}  // namespace vtlcmd::runner
