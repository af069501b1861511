#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "report/frame_ranges.h"
#include "report/page_frame.h"

namespace vtlcmd::runner {

/// The messages of a run in a page, each text once with the frames that have it.
class MessageList {
 public:
  void add(const PageFrame& frame);
  /// Those of no frame, by who speaks and by level.
  void addOfRun(const Json& messages);

  /// Which frames are missing, by `missing`, and which failed, and critical messages, errors and
  /// warnings, the worst first.
  void writeProblems(std::ostream& page, const std::string& missing) const;
  /// The others but those that are the text of an output, behind a line that opens them.
  void writeOthers(std::ostream& page) const;

 private:
  struct Message {
    std::string level;
    std::string source;
    std::string text;
    FrameRanges frames;
  };

  /// Of texts, and messages that there was no room for; of problems and of the others.
  struct Use {
    std::uint64_t bytes = 0;
    std::uint64_t leftOut = 0;
  };

  /// Null when there is no room for it.
  Message* find(const std::string& level, const std::string& source, const std::string& text);

  static void writeMessage(std::ostream& page, const Message& message);
  static void writeLeftOut(std::ostream& page, const Use& use);

  /// In the order of their first frames.
  std::vector<Message> messages_;
  /// By level, source and text, the place among them.
  std::map<std::string, std::size_t> places_;
  Use problems_;
  Use others_;
  FrameRanges failed_;
  FrameRanges interrupted_;
};

}  // namespace vtlcmd::runner
