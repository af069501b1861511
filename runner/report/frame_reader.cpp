#include "report/frame_reader.h"

#include <optional>

#include "journal/journal_reader.h"

namespace vtlcmd::runner {
namespace {

/// What every frame's content begins with; the index follows.
constexpr std::string_view beforeIndex = "{\"index\":";

}  // namespace

bool FrameReader::next() {
  while (nextPlace_ < survey_.job.size()) {
    place_ = nextPlace_++;
    if (entry().isThere == 0) continue;
    read();
    return true;
  }
  return false;
}

Json FrameReader::parse(std::string_view object) const {
  try {
    return parseJson(object);
  } catch (const nlohmann::json::exception&) {
    fail();
  }
}

void FrameReader::read() {
  journals_.readLine(run().journal, entry().offset, text_);
  const std::optional<JournalLine> line = parseJournalText(text_);
  if (!line || line->kind != line_kinds::frame) fail();
  line_ = *line;
  if (!survey_.job.isPutTogether()) return;
  const std::size_t behindIndex = line_.content.find(',');
  if (!line_.content.starts_with(beforeIndex) || behindIndex == std::string_view::npos) fail();
  content_ = beforeIndex;
  content_ += std::to_string(survey_.job.indexAt(place_));
  content_ += line_.content.substr(behindIndex);
  line_.content = content_;
}

void FrameReader::fail() const {
  throw JournalError(journals_.name(run().journal) + " changed while it was read");
}

}  // namespace vtlcmd::runner
