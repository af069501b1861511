#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/host/imports/orvel_string.h"

namespace Vantrel {

namespace Simulation {

/// The time of a frame, a plain value without code of a library.
struct Time {
  /// Always 1 here.
  std::int64_t mode;
  /// Seconds.
  double time;
  /// Frame number; it may have a fraction.
  double frame;
  /// Seconds a frame.
  double frameLength;
};

static_assert(offsetof(Time, time) == 8 && offsetof(Time, frame) == 16 &&
              offsetof(Time, frameLength) == 24 && sizeof(Time) == 32);

}  // namespace Simulation

namespace File::Project {

/// The files of a run, in narrow text: UTF-8, on Windows the file system's code page.
struct SceneInfo {
  Orvel::String fileName;
  /// With its trailing separator.
  Orvel::String directory;
  Orvel::String secondaryPath;
  bool hasSecondaryPath;
};

static_assert(offsetof(SceneInfo, directory) == 16 && offsetof(SceneInfo, secondaryPath) == 32 &&
              offsetof(SceneInfo, hasSecondaryPath) == 48 && sizeof(SceneInfo) == 56);

}  // namespace File::Project

}  // namespace Vantrel
