#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "diff/tolerance.h"
#include "execution/frame_list.h"
#include "vtlcmd/host/host_records.h"

namespace vtlcmd::runner {

/// A list as `parseFrameList` takes it. Throws UsageError.
FrameList parseFrames(const std::string& text);

/// Frames a second: a number like `24`, or a quotient of two like `24000/1001`, that a double holds
/// with full precision. Throws UsageError.
double parseFramesPerSecond(const std::string& text);

/// A level by its name or its number, 0 to 6. Throws UsageError.
std::uint32_t parseVerbosity(const std::string& text);

/// Throws UsageError.
std::uint32_t parsePrintLimit(const std::string& text);

/// A number of elements, or `allElements` for `all`. Throws UsageError.
std::uint64_t parseElements(const std::string& text);

/// How far numbers may be apart: `ABS` or `ABS,REL`, both finite and at least zero. Throws
/// UsageError.
Tolerance parseTolerance(const std::string& text);

bool isOneOf(const std::string& word, std::span<const char* const> names);

/// A path as the plug-in wants it. Throws UsageError, which names the option, for a text that can't
/// be converted.
HostPath parsePath(const std::string& option, const std::string& text);

}  // namespace vtlcmd::runner
