#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vtlcmd::bench {

/// Runs the runner to its end; what it prints is dropped. Throws std::runtime_error when it fails.
void runProgram(std::vector<std::string> arguments);

/// A graph file that lives as long as this does.
class GraphFile {
 public:
  explicit GraphFile(const std::string& text);
  GraphFile(const GraphFile&) = delete;
  GraphFile& operator=(const GraphFile&) = delete;
  ~GraphFile();

  const std::string& path() const noexcept { return path_; }

 private:
  std::string path_;
};

}  // namespace vtlcmd::bench
