#include "command_line/scheduler_words.h"

#include <algorithm>
#include <array>
#include <span>

#include "command_line/option_values.h"
#include "command_line/usage_error.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

/// Options of the scheduler that the program sets itself.
constexpr std::array ownNames{"--array", "--dependency", "--wait",     "--parsable",
                              "--wrap",  "--output",     "--open-mode"};
constexpr std::array ownLetters{"-a", "-d", "-W", "-o"};

bool isOwn(const std::string& word) {
  if (word.starts_with("--")) return isOneOf(word.substr(0, word.find('=')), ownNames);
  // A letter's value may stand right behind it.
  return isOneOf(word.substr(0, 2), ownLetters);
}

}  // namespace

void addSchedulerWords(CLI::App& command, std::vector<std::string>& words) {
  command
      .add_option("SBATCH_OPTIONS", words,
                  "Behind '--': the scheduler's own options, like --partition=long")
      ->type_name("");
}

void checkSchedulerWords(const std::vector<std::string>& words,
                         const std::vector<std::string>& arguments) {
  const auto mark = std::find(arguments.begin(), arguments.end(), "--");
  const auto behind = mark == arguments.end() ? 0 : std::distance(mark, arguments.end()) - 1;
  const auto count = static_cast<std::ptrdiff_t>(words.size());
  if (count > behind)
    throw UsageError("the word " + inQuotes(words.front()) + " isn't expected here");
  if (count < behind) throw UsageError("only the scheduler's options belong behind '--'");
  for (const std::string& word : words) {
    if (isOwn(word))
      throw UsageError("the scheduler's option " + inQuotes(word) + " is set by vtlcmd itself");
  }
}

}  // namespace vtlcmd::runner
