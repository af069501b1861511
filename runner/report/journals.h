#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iosfwd>
#include <list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vtlcmd::runner {

/// The journals that a report is made of, to be read more than once. Of thousands of files only
/// some are open at a time. One thread uses it.
class Journals {
 public:
  /// One that is open already. The stream must outlive this; `name` is what errors call it.
  Journals(std::istream& lines, std::string name);

  /// Files by their names in the program's texts, at least one.
  explicit Journals(std::vector<std::string> files) : names_(std::move(files)) {}

  std::size_t size() const noexcept { return names_.size(); }
  const std::string& name(std::size_t journal) const { return names_[journal]; }

  /// A journal from its first byte on, until the next call of either. Throws JournalError when it
  /// can't be opened.
  std::istream& lines(std::size_t journal);

  /// The line that begins at a byte of a journal, without its line end; one behind the other is
  /// quickest. Throws JournalError when it isn't there.
  void readLine(std::size_t journal, std::uint64_t offset, std::string& line);

 private:
  struct OpenJournal {
    std::size_t journal;
    std::ifstream file;
    /// That file, or somebody else's stream.
    std::istream* lines;
    /// Where it stands; nothing once somebody has moved it.
    std::optional<std::uint64_t> place;
  };

  OpenJournal& open(std::size_t journal);

  std::vector<std::string> names_;
  /// The one that was used last comes first.
  std::list<OpenJournal> open_;
};

}  // namespace vtlcmd::runner
