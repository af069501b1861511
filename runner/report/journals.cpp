#include "report/journals.h"

#include <algorithm>
#include <utility>

#include "journal/journal_reader.h"

namespace vtlcmd::runner {
namespace {

/// Systems let a process have some hundreds open at least.
constexpr std::size_t mostOpen = 64;

}  // namespace

Journals::Journals(std::istream& lines, std::string name) {
  names_.push_back(std::move(name));
  open_.push_back({0, {}, &lines, {}});
}

std::istream& Journals::lines(std::size_t journal) {
  OpenJournal& opened = open(journal);
  opened.place.reset();
  opened.lines->clear();
  opened.lines->seekg(0);
  return *opened.lines;
}

void Journals::readLine(std::size_t journal, std::uint64_t offset, std::string& line) {
  OpenJournal& opened = open(journal);
  if (opened.place != offset) {
    opened.lines->clear();
    opened.lines->seekg(static_cast<std::streamoff>(offset));
  }
  if (!std::getline(*opened.lines, line) || opened.lines->eof())
    throw JournalError(name(journal) + " changed while it was read");
  opened.place = offset + line.size() + 1;
}

Journals::OpenJournal& Journals::open(std::size_t journal) {
  const auto found = std::find_if(open_.begin(), open_.end(), [journal](const OpenJournal& opened) {
    return opened.journal == journal;
  });
  if (found != open_.end()) {
    open_.splice(open_.begin(), open_, found);
    return open_.front();
  }
  if (open_.size() == mostOpen) open_.pop_back();
  open_.push_front({journal, openJournalFile(name(journal)), nullptr, {}});
  open_.front().lines = &open_.front().file;
  return open_.front();
}

}  // namespace vtlcmd::runner
