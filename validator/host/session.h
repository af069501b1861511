#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "host/plug_in.h"

namespace vtlcmd::validator {

/// What one run of one check works with.
class Session {
 public:
  /// `file` is an absolute path.
  Session(std::filesystem::path file, std::uint64_t seed) : file_(std::move(file)), seed_(seed) {}

  const std::filesystem::path& file() const noexcept { return file_; }
  std::uint64_t seed() const noexcept { return seed_; }

  /// The plug-in, loaded at the first call and until `unload` or the session's end. Throws
  /// Unloadable.
  const PlugIn& plugIn() {
    if (!plugIn_) plugIn_.emplace(file_);
    return *plugIn_;
  }
  void unload() { plugIn_.reset(); }

 private:
  std::filesystem::path file_;
  std::uint64_t seed_;
  std::optional<PlugIn> plugIn_;
};

}  // namespace vtlcmd::validator
