#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

#include "journal/journal_lines.h"
#include "text/json.h"
#include "text/load_error.h"

namespace vtlcmd::runner {

/// A journal that can't be read, in words for the user that name it.
class JournalError : public LoadError {
 public:
  using LoadError::LoadError;
};

/// Opens a journal's file by its name in the program's texts. Throws JournalError when it can't be
/// opened, and for anything but a regular file.
std::ifstream openJournalFile(const std::string& name);

/// Reads a journal line by line. A last line that was cut off is as if it weren't there; any other
/// line that isn't what was written is an error.
class JournalReader {
 public:
  /// The stream must outlive this; `name` is what errors call the journal. Throws JournalError when
  /// it is no journal.
  JournalReader(std::istream& stream, std::string name);

  /// Goes to the next line. False at the end. Throws JournalError.
  bool next();

  /// The current line, valid until the next one. A JSON object of it is parsed by the second one,
  /// which throws JournalError.
  const JournalLine& line() const noexcept { return line_; }
  Json parse(std::string_view object) const;

  /// The place of the current line's first byte in the stream.
  std::uint64_t offset() const noexcept { return offset_; }

  /// Throws JournalError about the current line.
  [[noreturn]] void fail() const;

 private:
  std::istream& stream_;
  std::string name_;
  std::string text_;
  std::size_t number_ = 0;
  std::uint64_t offset_ = 0;
  std::uint64_t nextOffset_ = 0;
  JournalLine line_;
};

}  // namespace vtlcmd::runner
