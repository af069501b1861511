#pragma once

#include <cstdint>
#include <string>

#include "execution/frame_list.h"
#include "host/host_records.h"

namespace vtlcmd::runner {

/// Frame numbers from a list like `1`, `1-10`, `10-1`, `1-10x2`, `1-10:2` or `1,5,7-9x0.5`, in the
/// order given. Numbers may be negative or have a fraction. Throws UsageError.
FrameList parseFrames(const std::string& text);

/// Frames a second: a number like `24`, or a quotient of two like `24000/1001`, that a double holds
/// with full precision. Throws UsageError.
double parseFramesPerSecond(const std::string& text);

/// A level by its name or its number, 0 to 6. Throws UsageError.
std::uint32_t parseVerbosity(const std::string& text);

/// Throws UsageError.
std::uint32_t parsePrintLimit(const std::string& text);

/// A path as the plug-in wants it. Throws UsageError, which names the option, for a text that can't
/// be converted.
HostPath parsePath(const std::string& option, const std::string& text);

}  // namespace vtlcmd::runner
