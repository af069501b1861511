#include <array>
#include <string_view>
#include <utility>

#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "checks/type_names.h"
#include "host/port_host.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

/// The sample as a minimum reads: a vector of floats with a suffix, a bool as a number.
std::string statisticsText(const Sample& sample) {
  if (sample.type == std::string_view("bool")) return "1";
  std::string text;
  for (const char character : std::string_view(sample.report)) {
    const bool endsComponent = character == ',' || character == '}';
    if (sample.components > 1 && endsComponent) text += 'f';
    text += character;
  }
  return text;
}

/// The average of an array of the sample alone, which passes through single precision.
std::string averageText(const Sample& sample) {
  static constexpr std::pair<std::string_view, const char*> roundedAverages[] = {
      {"bool", "0"}, {"uint", "0"}, {"long", "-8999999488"}, {"ulong", "9223372036854775808"}};
  for (const auto& [type, text] : roundedAverages) {
    if (sample.type == type) return text;
  }
  return statisticsText(sample);
}

/// The report of an array of the sample alone.
std::string rowText(const Sample& sample) {
  const std::string type = sample.type;
  const std::string statistics = statisticsText(sample);
  switch (sample.arrayClass) {
    case ArrayClass::summarised:
      return (type == "bool" ? " (1 " : "(1 ") + type + ")\n  {\n     min: " + statistics +
             "\n     max: " + statistics + "\n     avg: " + averageText(sample) + "\n  }";
    case ArrayClass::refused:
      return "{non supported array of " + type + " }";
    default:
      return "\n(1 out of 1 " + type + ")[\n" + sample.report + " ]\n";
  }
}

/// Nested arrays, one element wide at each level. `wordsNest` when each level calls its element by
/// the element's whole name.
std::string nestedText(const Sample& sample, unsigned depth, bool wordsNest) {
  if (depth == 1) return rowText(sample);
  return "\n(1 out of 1 " + arrayName(sample.type, wordsNest ? depth - 1 : 0) + ")[\n" +
         nestedText(sample, depth - 1, wordsNest) + " ]\n";
}

void expectLine(const PortHost& host, const std::string& typeWord, const std::string& text) {
  expectLines("messages", host.messages(),
              {"progress Output port 'port': (" + typeWord + ") " + text});
}

void anyArrayIsReported(Session& session, const Sample& sample, unsigned rank) {
  PortHost host(session);
  expect(host.reportAny(sample.makeAny(rank)), "the answer is true");
  expectLine(host, arrayName(sample.type, rank), nestedText(sample, rank, false));
}

void valueArraysAreReported(Session& session, const Sample& sample) {
  Orvel::Value element = sample.makeValue();
  for (unsigned depth = 1; depth <= 5; ++depth) {
    element = Orvel::makeArray(element.getType(), std::array{element});
    PortHost host(session);
    expect(host.reportValue(element), "the answer is true");
    expectLine(host, arrayName(sample.type, depth), nestedText(sample, depth, true));
  }
}

void emptyArraysAreReported(Session& session, const Sample& sample) {
  const std::string name = sample.type;
  const std::string note = "(0 out of 0 " + name + ")";
  PortHost any(session);
  expect(any.reportAny(sample.makeEmptyArray()), "the answer is true");
  expectLine(any, arrayName(name, 1), note);
  PortHost value(session);
  expect(value.reportValue(Orvel::makeArray(sample.makeType(), {})), "the answer is true");
  expectLine(value, arrayName(name, 1), note);
  PortHost rows(session);
  expect(rows.reportAny(sample.makeEmptyRows()), "the answer is true");
  expectLine(rows, arrayName(name, 2),
             "\n(2 out of 2 " + name + ")[\n" + note + ",\n" + note + " ]\n");
}

}  // namespace

void addArrayChecks(CheckList& checks) {
  for (const Sample& sample : samples()) {
    addChecksOfType(checks, sample.type,
                    {{"array-any", "An array of {} in an Any is reported.",
                      [&](Session& session) { anyArrayIsReported(session, sample, 1); }},
                     {"array-any-2", "An Any two arrays of {} deep is reported.",
                      [&](Session& session) { anyArrayIsReported(session, sample, 2); }},
                     {"array-any-3", "An Any three arrays of {} deep is reported.",
                      [&](Session& session) { anyArrayIsReported(session, sample, 3); }},
                     {"array-value", "Array values of {} are reported at any depth.",
                      [&](Session& session) { valueArraysAreReported(session, sample); }},
                     {"array-empty", "An empty array of {} has a note.",
                      [&](Session& session) { emptyArraysAreReported(session, sample); }}});
  }
}

}  // namespace vtlcmd::validator
