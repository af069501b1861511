#include <array>

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

/// An array of the sample alone; `word` is what its level calls the element.
template <Registered T>
std::string rowText(const std::string& word) {
  const std::string name = valueType<T>().name;
  switch (valueType<T>().arrayClass) {
    case ArrayClass::summarised:
      return (std::is_same_v<T, bool> ? " (1 " : "(1 ") + name +
             ")\n  {\n     min: " + statisticsText<T>() + "\n     max: " + statisticsText<T>() +
             "\n     avg: " + averageText<T>() + "\n  }";
    case ArrayClass::refused:
      return "{non supported array of " + name + " }";
    default:
      return "\n(1 out of 1 " + word + ")[\n" + sampleOf<T>().report + " ]\n";
  }
}

/// The text of nested arrays, one element wide at each level. `wordsNest` when each level calls its
/// element by the element's whole name.
template <Registered T>
std::string nestedText(unsigned depth, bool wordsNest) {
  const std::string name = valueType<T>().name;
  if (depth == 1) return rowText<T>(name);
  return "\n(1 out of 1 " + (wordsNest ? arrayName(name, depth - 1) : name) + ")[\n" +
         nestedText<T>(depth - 1, wordsNest) + " ]\n";
}

void expectLine(const PortHost& host, const std::string& typeWord, const std::string& text) {
  expectLines("messages", host.messages(),
              {"progress Output port 'port': (" + typeWord + ") " + text});
}

template <Registered T, std::uint32_t Rank>
void anyArrayIsReported(Session& session) {
  PortHost host(session);
  expect(host.reportAny(makeAny(nestedArray<T, Rank>(sampleValue<T>()))), "the answer is true");
  expectLine(host, arrayName(valueType<T>().name, Rank), nestedText<T>(Rank, false));
}

template <Registered T>
void valueArraysAreReported(Session& session) {
  const Orvel::Type type = Orvel::typeOf<T>();
  Orvel::Type elementType = type;
  Orvel::Value element = Orvel::makeValue<T>(sampleValue<T>());
  for (unsigned depth = 1; depth <= 5; ++depth) {
    element = Orvel::makeArray(elementType, std::array{element});
    elementType = Orvel::makeArrayType(elementType);
    PortHost host(session);
    expect(host.reportValue(element), "the answer is true");
    expectLine(host, arrayName(valueType<T>().name, depth), nestedText<T>(depth, true));
  }
}

template <Registered T>
void emptyArraysAreReported(Session& session) {
  const std::string name = valueType<T>().name;
  const auto empty = arrayOf<T>({});
  PortHost any(session);
  expect(any.reportAny(makeAny(empty)), "the answer is true");
  expectLine(any, arrayName(name, 1), "(0 out of 0 " + name + ")");
  PortHost value(session);
  expect(value.reportValue(Orvel::makeValue(empty)), "the answer is true");
  expectLine(value, arrayName(name, 1), "(0 out of 0 " + name + ")");
  PortHost row(session);
  expect(row.reportAny(makeAny(arrayOf<StoredArray<T, 1>>({empty, empty}))), "the answer is true");
  expectLine(
      row, arrayName(name, 2),
      "\n(2 out of 2 " + name + ")[\n(0 out of 0 " + name + "),\n(0 out of 0 " + name + ") ]\n");
}

template <Registered T>
void addArraysOf(CheckList& checks) {
  const std::string type = valueType<T>().name;
  const std::string name = nameOfType(type);
  checks.push_back({"array-any-" + name, "An array of " + type + " in an Any is reported.",
                    anyArrayIsReported<T, 1>});
  checks.push_back({"array-any-2-" + name, "An Any two arrays of " + type + " deep is reported.",
                    anyArrayIsReported<T, 2>});
  checks.push_back({"array-any-3-" + name, "An Any three arrays of " + type + " deep is reported.",
                    anyArrayIsReported<T, 3>});
  checks.push_back({"array-value-" + name,
                    "Array values of " + type + " are reported at any depth.",
                    valueArraysAreReported<T>});
  checks.push_back({"array-empty-" + name, "An empty array of " + type + " has a note.",
                    emptyArraysAreReported<T>});
}

}  // namespace

void addArrayChecks(CheckList& checks) {
  forEachRegistered([&](const auto& row) { addArraysOf<TypeOf<decltype(row)>>(checks); });
}

}  // namespace vtlcmd::validator
