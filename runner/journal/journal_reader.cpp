#include "journal/journal_reader.h"

#include <cerrno>
#include <filesystem>
#include <istream>
#include <system_error>
#include <utility>

#include "text/path_text.h"

namespace vtlcmd::runner {

std::ifstream openJournalFile(const std::string& name) {
  const std::filesystem::path file = filePath(name);
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(file, ignored);
  if (is_directory(status))
    throw JournalError(name + ": " + std::generic_category().message(EISDIR));
  if (exists(status) && !is_regular_file(status))
    throw JournalError(name + " is no journal of a run");
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw JournalError(name + ": " + std::generic_category().message(errno));
  return stream;
}

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

Json JournalReader::parse(std::string_view object) const {
  try {
    return parseJson(object);
  } catch (const nlohmann::json::exception&) {
    fail();
  }
}

void JournalReader::fail() const {
  throw JournalError(name_ + ": line " + std::to_string(number_) + " is damaged");
}

}  // namespace vtlcmd::runner
