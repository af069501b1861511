#include "report/frame_facts.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>

#include "journal/journal_lines.h"
#include "text/json.h"

namespace vtlcmd::runner {
namespace {

/// What every frame's line has; the places are those of `factNames`.
enum Fact : std::size_t {
  indexFact,
  frameFact,
  interruptedFact,
  failureFact,
  errorsFact,
  warningsFact
};

constexpr std::array<std::string_view, 6> factNames{"index",   "frame",        "interrupted",
                                                    "failure", "graph_errors", "graph_warnings"};

template <std::size_t Size>
std::size_t placeOf(std::string_view name, const std::array<std::string_view, Size>& names) {
  return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
}

/// Gathers the facts while a line is parsed, without a document of it in memory.
class FactsGatherer : public nlohmann::json_sax<Json> {
 public:
  const FrameFacts& facts() const { return facts_; }
  bool isComplete() const {
    return std::all_of(found_.begin(), found_.end(), [](bool isFound) { return isFound; });
  }

  bool null() override { return true; }
  bool boolean(bool value) override {
    if (isFact(interruptedFact)) facts_.interrupted = value;
    return true;
  }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t value) override {
    if (isFact(indexFact)) facts_.index = value;
    if (isFact(errorsFact)) facts_.graphErrors = value;
    if (isFact(warningsFact)) facts_.graphWarnings = value;
    return true;
  }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool string(string_t& value) override {
    if (isFact(frameFact)) facts_.frame = value;
    if (isFact(failureFact)) {
      const std::size_t failure = placeOf(value, failureNames);
      if (failure == failureNames.size()) return false;
      facts_.failure = static_cast<Failure>(failure);
    }
    if (problem_ < problemLevels.size()) ++facts_.problems[problem_];
    return true;
  }
  bool binary(binary_t&) override { return true; }
  bool start_object(std::size_t) override {
    ++depth_;
    return true;
  }
  bool key(string_t& name) override {
    if (depth_ == 1) {
      fact_ = placeOf(name, factNames);
      isMessages_ = name == "messages";
    }
    // The levels of messages stand below who speaks.
    constexpr int levelDepth = 3;
    problem_ =
        isMessages_ && depth_ == levelDepth ? placeOf(name, problemLevels) : problemLevels.size();
    return true;
  }
  bool end_object() override {
    --depth_;
    return true;
  }
  bool start_array(std::size_t) override { return true; }
  bool end_array() override { return true; }
  bool parse_error(std::size_t, const std::string&, const Json::exception&) override {
    return false;
  }

 private:
  /// Whether the current value is this fact.
  bool isFact(Fact fact) {
    if (depth_ != 1 || fact_ != fact) return false;
    found_[fact] = true;
    return true;
  }

  FrameFacts facts_;
  std::array<bool, factNames.size()> found_{};
  int depth_ = 0;
  std::size_t fact_ = factNames.size();
  bool isMessages_ = false;
  std::size_t problem_ = problemLevels.size();
};

}  // namespace

std::optional<FrameFacts> frameFacts(std::string_view content) {
  FactsGatherer gatherer;
  if (!Json::sax_parse(content, &gatherer) || !gatherer.isComplete()) return std::nullopt;
  return gatherer.facts();
}

double frameNumber(const std::string& text) {
  double number = std::numeric_limits<double>::quiet_NaN();
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

}  // namespace vtlcmd::runner
