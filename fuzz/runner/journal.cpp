#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "input.h"
#include "journal/journal_lines.h"
#include "journal/journal_reader.h"
#include "requirement.h"
#include "target.h"

namespace {

using namespace vtlcmd::runner;
using vtlcmd::fuzz::Input;
using vtlcmd::fuzz::require;

constexpr std::size_t stride = 7;

/// Lines that a journal may have, of the fuzzer's texts.
std::string journalFrom(Input& input) {
  constexpr std::string_view kinds[] = {line_kinds::run, line_kinds::start, line_kinds::frame,
                                        line_kinds::end};
  std::string journal;
  for (std::size_t left = input.below(4) + 1; left > 0; --left) {
    const auto objectOf = [&input] {
      const std::string text = input.text(input.below(20));
      return nlohmann::json{{"text", text}}.dump(-1, ' ', false,
                                                 nlohmann::json::error_handler_t::replace);
    };
    const std::string told = objectOf();
    const std::string times = objectOf();
    journal += journalText({kinds[input.below(std::size(kinds))], told, times});
  }
  return journal;
}

/// The lines of a journal as they are written again, up to the first that is damaged or cut off.
std::string readAgain(const std::string& journal, bool& isDamaged) {
  std::string again;
  isDamaged = false;
  try {
    std::istringstream stream(journal);
    JournalReader reader(stream, "J");
    while (reader.next()) {
      require(reader.offset() == again.size(), "a line's place is known");
      again += journalText(reader.line());
    }
  } catch (const JournalError&) {
    isDamaged = true;
  }
  return again;
}

void requireBeginning(const std::string& journal) {
  bool isDamaged = false;
  const std::string again = readAgain(journal, isDamaged);
  require(journal.starts_with(again), "lines are read as they were written");
  const std::size_t whole = journal.rfind('\n') + 1;
  require(isDamaged || again.size() == whole, "whole lines are read or damage is told");
}

}  // namespace

/// Any bytes as a journal, and a journal of the fuzzer's texts: whole, cut off, and with a byte
/// changed, at every so many places.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  requireBeginning(vtlcmd::fuzz::textOf(data, size));

  Input input(data, size);
  const std::string journal = journalFrom(input);
  bool isDamaged = false;
  require(readAgain(journal, isDamaged) == journal && !isDamaged, "a journal is read whole");

  const std::size_t cut = input.take<std::uint16_t>() % journal.size();
  requireBeginning(journal.substr(0, cut));
  const auto change = static_cast<unsigned char>(input.below(255) + 1);
  for (std::size_t place = cut % stride; place < journal.size(); place += stride) {
    std::string changed = journal;
    changed[place] = static_cast<char>(static_cast<unsigned char>(journal[place]) ^ change);
    const std::string again = readAgain(changed, isDamaged);
    require(journal.starts_with(again), "lines before the damage are read");
    require(isDamaged || again.size() < journal.size(), "a changed byte is noticed");
  }
  return 0;
}
