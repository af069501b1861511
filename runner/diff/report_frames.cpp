#include "diff/report_frames.h"

#include <string>

namespace vtlcmd::runner {

ReportFrames::ReportFrames(std::istream& stream) : scanner_(stream) {
  std::optional<std::istream::pos_type> frames;
  scanner_.require('{');
  do {
    const std::string name = parseJson(scanner_.value());
    scanner_.require(':');
    if (name == "frames") frames = stream.tellg();
    if (name == "run") {
      run_ = parseJson(scanner_.value());
    } else {
      scanner_.skipValue();
    }
  } while (scanner_.take(','));
  scanner_.require('}');
  if (!scanner_.isAtEnd() || !run_.is_object() || !frames) throw JsonScanError();
  stream.clear();
  stream.seekg(*frames);
  scanner_.require('[');
}

std::optional<Json> ReportFrames::next() {
  if (scanner_.take(']')) return std::nullopt;
  if (!isFirst_) scanner_.require(',');
  isFirst_ = false;
  return parseJson(scanner_.value());
}

}  // namespace vtlcmd::runner
