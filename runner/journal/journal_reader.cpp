#include "journal/journal_reader.h"

#include <istream>
#include <utility>

namespace vtlcmd::runner {

JournalReader::JournalReader(std::istream& stream, std::string name)
    : stream_(stream), name_(std::move(name)) {
  stream_.clear();
  stream_.seekg(0);
  // A large file of another kind isn't read for a line that it hasn't.
  std::string opening(journalOpening.size(), '\0');
  stream_.read(opening.data(), static_cast<std::streamsize>(opening.size()));
  opening.resize(static_cast<std::size_t>(stream_.gcount()));
  if (!journalOpening.starts_with(opening)) throw JournalError(name_ + " is no journal of a run");
  stream_.clear();
  stream_.seekg(0);
}

bool JournalReader::next() {
  // The end of the file before the end of the line: the line was cut off, or there is none.
  const bool isWhole = std::getline(stream_, text_) && !stream_.eof();
  if (stream_.bad()) throw JournalError(name_ + " can't be read to its end");
  if (!isWhole) return false;
  ++number_;
  offset_ = nextOffset_;
  nextOffset_ += text_.size() + 1;
  const std::optional<JournalLine> line = parseJournalText(text_);
  if (!line) fail();
  line_ = *line;
  return true;
}

nlohmann::ordered_json JournalReader::parse(std::string_view object) const {
  try {
    return nlohmann::ordered_json::parse(object);
  } catch (const nlohmann::json::exception&) {
    fail();
  }
}

void JournalReader::fail() const {
  throw JournalError(name_ + ": line " + std::to_string(number_) + " is damaged");
}

}  // namespace vtlcmd::runner
