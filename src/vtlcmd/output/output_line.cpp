#include "vtlcmd/output/output_line.h"

#include <string_view>

namespace vtlcmd {
namespace {

/// Enough for the line's own words and the text of a single value or of a block of statistics.
constexpr std::size_t usualRoom = 200;

}  // namespace

OutputLine::OutputLine(const Orvel::String& portName, const char* typeWord, VtlCmdLogger& logger)
    : portName_(portName.c_str()),
      typeWord_(typeWord),
      logger_(logger),
      showsValue_(logger.printLimit != 0),
      text_(usualRoom + std::string_view(portName_).size() + std::string_view(typeWord).size()) {
  text_ << "Output port '" << portName_ << "': (" << typeWord_
        << (showsValue_ ? ") " : " output suppressed)");
  valueStart_ = text_.size();
}

void OutputLine::report() {
  if (showsValue_) {
    logger_.reportOutputValue(portName_, typeWord_, text_.text().c_str() + valueStart_);
  } else {
    logger_.reportOutputSuppressed(portName_, typeWord_);
  }
  logger_.addMessage(vtlcmdSource, levelProgress, text_.text());
}

}  // namespace vtlcmd
