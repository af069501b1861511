#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "execution/frame_record.h"

/// The lines of a journal. Each is a JSON object of a checksum, what the line tells, and "times":
/// what another run of the same would tell differently.
///
///   {"crc32":"0123abcd","frame":{...},"times":{...}}
///
/// The checksum is over the bytes behind its own comma, up to the line's end without it.

namespace vtlcmd::runner {

/// The version of this form.
inline constexpr int journalForm = 1;

/// What every journal begins with.
inline constexpr std::string_view journalOpening = R"({"crc32":")";

/// The kinds of lines, in the order of their first appearance.
namespace line_kinds {
inline constexpr std::string_view run = "run";
inline constexpr std::string_view start = "start";
inline constexpr std::string_view frame = "frame";
inline constexpr std::string_view end = "end";
}  // namespace line_kinds

/// By Failure, what a frame's line calls it.
inline constexpr std::array<std::string_view, 3> failureNames{"none", "transient", "permanent"};

/// A line taken apart; `content` and `times` are JSON objects.
struct JournalLine {
  std::string_view kind;
  std::string_view content;
  std::string_view times;
};

/// The line with its line end.
std::string journalText(const JournalLine& line);

/// The parts of a text without its line end. Nothing when it isn't what `journalText` gave.
std::optional<JournalLine> parseJournalText(std::string_view text);

/// What a "frame" line tells of a frame, for everyone and for its "times".
std::string frameContent(const FrameRecord& record);
std::string frameTimes(const FrameOutcome& outcome);

/// Messages as an object by who speaks, by level.
std::string messagesContent(const MessagesBySource& messages);

}  // namespace vtlcmd::runner
