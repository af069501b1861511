#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

void expectLine(Session& session, std::uint32_t printLimit, const Any& value,
                const std::string& text) {
  PortHost host(session, printLimit);
  expect(host.reportAny(value), "the answer is true");
  expectText("line", host.lastText(), "Output port 'port': " + text);
}

Any letters() { return makeAny(arrayOf<Orvel::String>({"a", "b", "c", "d", "e"})); }

void listStopsAtLimit(Session& session) {
  expectLine(session, 2, letters(), "(array<string>) \n(2 out of 5 string)[\n\"a\",\n\"b\" ]\n");
}

void listEndsWithArray(Session& session) {
  expectLine(session, 4294967295U, letters(),
             "(array<string>) \n(5 out of 5 string)[\n\"a\",\n\"b\",\n\"c\",\n\"d\",\n\"e\" ]\n");
}

void objectsAreListed(Session& session) {
  expectLine(session, 10, makeAny(arrayOf<ObjectPtr>({Vantrel::createObject(), {}})),
             "(array<Object>) \n(2 out of 2 Object)[\n{\n},\n{\n  No object produced, verify your "
             "inputs.\n} ]\n");
}

StoredArray<std::int32_t, 2> twoRows() {
  return arrayOf<StoredArray<std::int32_t, 1>>(
      {arrayOf<std::int32_t>({1, 2}), arrayOf<std::int32_t>({3})});
}

const std::string firstRow = "(2 int)\n  {\n     min: 1\n     max: 2\n     avg: 1\n  }";
const std::string secondRow = "(1 int)\n  {\n     min: 3\n     max: 3\n     avg: 3\n  }";

void rowsAreListed(Session& session) {
  expectLine(session, 10, makeAny(twoRows()),
             "(array<array<int>>) \n(2 out of 2 int)[\n" + firstRow + ",\n" + secondRow + " ]\n");
}

void rowsStopAtLimit(Session& session) {
  expectLine(session, 1, makeAny(twoRows()),
             "(array<array<int>>) \n(1 out of 2 int)[\n" + firstRow + " ]\n");
}

void valueRowsNameTheirType(Session& session) {
  PortHost host(session, 1);
  expect(host.reportValue(Orvel::makeValue(twoRows())), "the answer is true");
  expectText(
      "line", host.lastText(),
      "Output port 'port': (array<array<int>>) \n(1 out of 2 array<int>)[\n" + firstRow + " ]\n");
}

void limitBoundsEachLevel(Session& session) {
  const auto rows = arrayOf<StoredArray<Orvel::String, 1>>(
      {arrayOf<Orvel::String>({"a", "b"}), arrayOf<Orvel::String>({"c"})});
  expectLine(
      session, 1, makeAny(rows),
      "(array<array<string>>) \n(1 out of 2 string)[\n\n(1 out of 2 string)[\n\"a\" ]\n ]\n");
}

void limitLeavesStatistics(Session& session) {
  expectLine(session, 1, makeAny(arrayOf<float>(std::vector<float>(1000, 0.5F))),
             "(array<float>) (1000 float)\n  {\n     min: 0.5\n     max: 0.5\n     avg: 0.5\n  }");
}

void refusedRows(Session& session) {
  const auto row = arrayOf<Math::double3>({{}, {}});
  expectLine(session, 10, makeAny(arrayOf<StoredArray<Math::double3, 1>>({row, row})),
             "(array<array<Math::double3>>) \n(2 out of 2 Math::double3)[\n{non supported array of "
             "Math::double3 },\n{non supported array of Math::double3 } ]\n");
}

void threeLevels(Session& session) {
  const auto one = arrayOf<StoredArray<std::int32_t, 1>>({arrayOf<std::int32_t>({1})});
  const auto two = arrayOf<StoredArray<std::int32_t, 1>>({arrayOf<std::int32_t>({2})});
  const auto block = [](const char* n) {
    return std::string("\n(1 out of 1 int)[\n(1 int)\n  {\n     min: ") + n + "\n     max: " + n +
           "\n     avg: " + n + "\n  } ]\n";
  };
  expectLine(session, 10, makeAny(arrayOf<StoredArray<std::int32_t, 2>>({one, two})),
             "(array<array<array<int>>>) \n(2 out of 2 int)[\n" + block("1") + ",\n" + block("2") +
                 " ]\n");
}

void emptyStringsAreListed(Session& session) {
  expectLine(session, 10, makeAny(arrayOf<Orvel::String>({"", "\""})),
             "(array<string>) \n(2 out of 2 string)[\n\"\",\n\"\"\" ]\n");
}

}  // namespace

void addListingChecks(CheckList& checks) {
  checks.push_back(
      {"list-limit", "A list stops at the limit, and its head says so.", listStopsAtLimit});
  checks.push_back({"list-whole", "A list within the limit is whole.", listEndsWithArray});
  checks.push_back(
      {"list-objects", "Objects in an array are listed, null ones too.", objectsAreListed});
  checks.push_back(
      {"list-empty-strings", "Strings in an array are listed as they are.", emptyStringsAreListed});
  checks.push_back({"list-rows", "The rows of a nested array are listed.", rowsAreListed});
  checks.push_back(
      {"list-rows-limit", "The limit bounds rows, not their statistics.", rowsStopAtLimit});
  checks.push_back({"list-value-words", "An array value's outer level names the type of its rows.",
                    valueRowsNameTheirType});
  checks.push_back({"list-levels-limit", "The limit bounds each level.", limitBoundsEachLevel});
  checks.push_back({"list-statistics-limit", "Statistics cover all elements at any limit.",
                    limitLeavesStatistics});
  checks.push_back(
      {"list-refused-rows", "Each row of an unsupported type is refused.", refusedRows});
  checks.push_back({"list-three-levels", "Three levels nest their heads and ends.", threeLevels});
}

}  // namespace vtlcmd::validator
