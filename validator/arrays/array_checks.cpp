#include <array>

#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "checks/type_names.h"
#include "host/port_host.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

/// The sample as a minimum reads: a vector of floats with a suffix, a bool as a number.
template <Registered T>
std::string statisticsText() {
  if constexpr (std::is_same_v<T, bool>) return "1";
  std::string text;
  for (const char* at = sampleOf<T>().report; *at != 0; ++at) {
    const bool endsComponent = *at == ',' || *at == '}';
    if (valueType<T>().components > 1 && endsComponent) text += 'f';
    text += *at;
  }
  return text;
}

/// The average of an array of the sample alone, which passes through single precision.
template <Registered T>
std::string averageText() {
  if constexpr (std::is_same_v<T, bool>) return "0";
  if constexpr (std::is_same_v<T, std::uint32_t>) return "0";
  if constexpr (std::is_same_v<T, std::int64_t>) return "-8999999488";
  if constexpr (std::is_same_v<T, std::uint64_t>) return "9223372036854775808";
  return statisticsText<T>();
}

/// The texts of arrays of one element type, of samples alone.
struct ArrayTexts {
  std::string name;
  ArrayClass arrayClass;
  std::string element;
  std::string statistics;
  std::string average;
  /// Before the count of elements in a block of statistics.
  const char* margin;

  /// `word` is what the level calls the element.
  std::string row(const std::string& word) const {
    switch (arrayClass) {
      case ArrayClass::summarised:
        return margin + ("(1 " + name) + ")\n  {\n     min: " + statistics +
               "\n     max: " + statistics + "\n     avg: " + average + "\n  }";
      case ArrayClass::refused:
        return "{non supported array of " + name + " }";
      default:
        return "\n(1 out of 1 " + word + ")[\n" + element + " ]\n";
    }
  }

  /// Nested arrays, one element wide at each level. `wordsNest` when each level calls its element
  /// by the element's whole name.
  std::string nested(unsigned depth, bool wordsNest) const {
    if (depth == 1) return row(name);
    return "\n(1 out of 1 " + (wordsNest ? arrayName(name, depth - 1) : name) + ")[\n" +
           nested(depth - 1, wordsNest) + " ]\n";
  }
};

template <Registered T>
ArrayTexts textsOf() {
  return {valueType<T>().name, valueType<T>().arrayClass, sampleOf<T>().report,
          statisticsText<T>(), averageText<T>(),          std::is_same_v<T, bool> ? " " : ""};
}

void expectLine(const PortHost& host, const std::string& typeWord, const std::string& text) {
  expectLines("messages", host.messages(),
              {"progress Output port 'port': (" + typeWord + ") " + text});
}

void expectNestedReported(Session& session, const Any& any, unsigned depth,
                          const ArrayTexts& texts) {
  PortHost host(session);
  expect(host.reportAny(any), "the answer is true");
  expectLine(host, arrayName(texts.name, depth), texts.nested(depth, false));
}

template <Registered T, std::uint32_t Rank>
void anyArrayIsReported(Session& session) {
  expectNestedReported(session, makeAny(nestedArray<T, Rank>(sampleValue<T>())), Rank,
                       textsOf<T>());
}

void expectValueLevelsReported(Session& session, Orvel::Value element, const ArrayTexts& texts) {
  for (unsigned depth = 1; depth <= 5; ++depth) {
    element = Orvel::makeArray(element.getType(), std::array{element});
    PortHost host(session);
    expect(host.reportValue(element), "the answer is true");
    expectLine(host, arrayName(texts.name, depth), texts.nested(depth, true));
  }
}

template <Registered T>
void valueArraysAreReported(Session& session) {
  expectValueLevelsReported(session, Orvel::makeValue<T>(sampleValue<T>()), textsOf<T>());
}

/// `rows` has two empty arrays.
void expectEmptyReported(Session& session, const Any& empty, const Orvel::Value& emptyValue,
                         const Any& rows, const std::string& name) {
  const std::string note = "(0 out of 0 " + name + ")";
  PortHost any(session);
  expect(any.reportAny(empty), "the answer is true");
  expectLine(any, arrayName(name, 1), note);
  PortHost value(session);
  expect(value.reportValue(emptyValue), "the answer is true");
  expectLine(value, arrayName(name, 1), note);
  PortHost row(session);
  expect(row.reportAny(rows), "the answer is true");
  expectLine(row, arrayName(name, 2),
             "\n(2 out of 2 " + name + ")[\n" + note + ",\n" + note + " ]\n");
}

template <Registered T>
void emptyArraysAreReported(Session& session) {
  const auto empty = arrayOf<T>({});
  expectEmptyReported(session, makeAny(empty), Orvel::makeValue(empty),
                      makeAny(arrayOf<StoredArray<T, 1>>({empty, empty})), valueType<T>().name);
}

}  // namespace

void addArrayChecks(CheckList& checks) {
  forEachRegistered([&](const auto& row) {
    using T = TypeOf<decltype(row)>;
    addChecksOfType(
        checks, row.name,
        {{"array-any", "An array of {} in an Any is reported.", anyArrayIsReported<T, 1>},
         {"array-any-2", "An Any two arrays of {} deep is reported.", anyArrayIsReported<T, 2>},
         {"array-any-3", "An Any three arrays of {} deep is reported.", anyArrayIsReported<T, 3>},
         {"array-value", "Array values of {} are reported at any depth.",
          valueArraysAreReported<T>},
         {"array-empty", "An empty array of {} has a note.", emptyArraysAreReported<T>}});
  });
}

}  // namespace vtlcmd::validator
