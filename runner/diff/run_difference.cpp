#include "diff/run_difference.h"

#include <algorithm>
#include <map>

#include "report/flat_value.h"
#include "report/frame_facts.h"

namespace vtlcmd::runner {
namespace {

Json stateOf(const Json& frame) {
  if (frame.is_null()) return nullptr;
  if (frame.at("interrupted")) return "interrupted";
  return frame.at("succeeded") ? "succeeded" : "failed";
}

/// The texts of critical messages, errors and warnings, one behind the other.
Json problemsOf(const Json& frame) {
  Json texts = Json::array();
  for (const auto& [source, levels] : frame.at("messages").items()) {
    for (const std::string_view level : problemLevels) {
      const auto found = levels.find(std::string(level));
      if (found == levels.end()) continue;
      for (const Json& text : *found) texts.push_back(text);
    }
  }
  return texts;
}

Json memberOf(const Json& object, const std::string& name) {
  const auto found = object.find(name);
  return found == object.end() ? Json() : *found;
}

class FrameComparison {
 public:
  FrameComparison(const Tolerance& tolerance, const std::function<void(const RunDifference&)>& tell)
      : tolerance_(tolerance), tell_(tell) {}

  /// Of frames of one number; null of a run that lacks it.
  void compare(const Json& a, const Json& b) {
    frame_ = (a.is_null() ? b : a).at("frame");
    const std::uint64_t before = counts_.differences;
    compareValues("", "state", stateOf(a), stateOf(b));
    if (!a.is_null()) ++counts_.framesOfA;
    if (!b.is_null()) ++counts_.framesOfB;
    if (!a.is_null() && !b.is_null()) {
      compareOutputs(a.at("outputs"), b.at("outputs"));
      compareProblems(problemsOf(a), problemsOf(b));
    }
    if (counts_.differences > before) ++counts_.differentFrames;
  }

  const DifferenceCounts& counts() const { return counts_; }

 private:
  void compareOutputs(const Json& a, const Json& b) {
    for (const auto& [name, output] : a.items()) compareOutput(name, output, memberOf(b, name));
    for (const auto& [name, output] : b.items()) {
      if (!a.contains(name)) compareOutput(name, Json(), output);
    }
  }

  void compareOutput(const std::string& name, const Json& a, const Json& b) {
    if (a.is_null() || b.is_null())
      return tell(name, "", a.is_null() ? a : memberOf(a, "value"),
                  b.is_null() ? b : memberOf(b, "value"));
    compareValues(name, "type", a.at("type"), b.at("type"));
    const Json valueA = memberOf(a, "value");
    const Json valueB = memberOf(b, "value");
    std::map<std::string, const Json*> partsB;
    for (const ValuePart& part : partsOf(valueB, true)) partsB.emplace(part.place, part.part);
    for (const ValuePart& part : partsOf(valueA, true)) {
      const auto other = partsB.find(part.place);
      compareValues(name, part.place, *part.part, other == partsB.end() ? Json() : *other->second);
      if (other != partsB.end()) partsB.erase(other);
    }
    for (const auto& [place, part] : partsB) compareValues(name, place, Json(), *part);
  }

  /// The first text that differs stands for all.
  void compareProblems(const Json& a, const Json& b) {
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
      const Json textA = i < a.size() ? a[i] : Json();
      const Json textB = i < b.size() ? b[i] : Json();
      if (textA != textB) return tell("", "messages", textA, textB);
    }
  }

  void compareValues(const std::string& output, const std::string& place, const Json& a,
                     const Json& b) {
    if (!areEqual(a, b, tolerance_)) tell(output, place, a, b);
  }

  void tell(const std::string& output, const std::string& place, const Json& a, const Json& b) {
    ++counts_.differences;
    tell_({frame_, output, place, a, b});
  }

  const Tolerance& tolerance_;
  const std::function<void(const RunDifference&)>& tell_;
  std::string frame_;
  DifferenceCounts counts_;
};

}  // namespace

DifferenceCounts compareRuns(ComparedRun& a, ComparedRun& b, const Tolerance& tolerance,
                             const std::function<void(const RunDifference&)>& tell) {
  FrameComparison comparison(tolerance, tell);
  std::optional<ComparedFrame> frameA = a.next();
  std::optional<ComparedFrame> frameB = b.next();
  while (frameA || frameB) {
    const bool takesA = frameA && (!frameB || frameA->number <= frameB->number);
    const bool takesB = frameB && (!frameA || frameB->number <= frameA->number);
    comparison.compare(takesA ? frameA->content : Json(), takesB ? frameB->content : Json());
    if (takesA) frameA = a.next();
    if (takesB) frameB = b.next();
  }
  return comparison.counts();
}

}  // namespace vtlcmd::runner
