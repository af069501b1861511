#include <limits>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "vtlcmd/stand_in/make_string.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

struct ValueTextRow {
  const char* name;
  double value;
  const char* text;
};

constexpr ValueTextRow valueTextRows[]{
    {"whole", 1, "1"},
    {"fraction", 2.5, "2.5"},
    {"thirds", 8.0 / 3, "2.66667"},
    {"pi", 3.14159265358979, "3.14159"},
    {"six-digits", 100000, "100000"},
    {"seven-digits", 1000000, "1e+06"},
    {"rounded", 1234567, "1.23457e+06"},
    {"rounded-up", 999999.5, "1e+06"},
    {"small", 0.0001, "0.0001"},
    {"smaller", 0.00001, "1e-05"},
    {"tenth", 0.1, "0.1"},
    {"minus-zero", -0.0, "-0"},
    {"three-exponent-digits", 1e300, "1e+300"},
    {"subnormal", 5e-324, "4.94066e-324"},
};

void numberReads(Session& session, const ValueTextRow& row) {
  PortHost host(session);
  expect(host.reportAny(makeAny(row.value)) && host.reportValue(Orvel::makeValue(row.value)),
         "the answers are true");
  std::vector<std::string> lines(2,
                                 std::string("progress Output port 'port': (double) ") + row.text);
  const auto narrow = static_cast<float>(row.value);
  if (narrow != 0 && narrow < std::numeric_limits<float>::infinity()) {
    host.reportAny(makeAny(narrow));
    lines.push_back(std::string("progress Output port 'port': (float) ") + row.text);
  }
  expectLines("messages", host.messages(), lines);
}

template <typename T>
void extremeReads(PortHost& host, T value, const std::string& text) {
  expect(host.reportAny(makeAny(value)), "the answer is true");
  expectText("line", host.lastText(),
             std::string("Output port 'port': (") + valueType<T>().name + ") " + text);
}

void integersReadInFull(Session& session) {
  PortHost host(session);
  extremeReads(host, std::numeric_limits<std::int32_t>::min(), "-2147483648");
  extremeReads(host, std::numeric_limits<std::uint32_t>::max(), "4294967295");
  extremeReads(host, std::numeric_limits<std::int64_t>::min(), "-9223372036854775808");
  extremeReads(host, std::numeric_limits<std::uint64_t>::max(), "18446744073709551615");
}

void vectorsHaveNoSuffix(Session& session) {
  PortHost host(session);
  extremeReads(host, Math::float3{{0.5F, 1000000, 0}}, "{0.5, 1e+06, 0}");
  extremeReads(host, Math::double3{{1, 2, 3}}, "{1, 2, 3}");
}

void stringsStandBare(Session& session) {
  PortHost host(session);
  extremeReads(host, Orvel::String("a \"b\"\nc\\"), "\"a \"b\"\nc\\\"");
  extremeReads(host, Orvel::makeString({"ab\0cd", 5}), "\"ab\"");
}

void structsWithOtherMembers(Session& session) {
  // A vector's name is looked up, but its members are walked.
  const Orvel::MemberSpec members[]{{"x", Orvel::typeOf<float>()},
                                    {"n", Orvel::typeOf<std::int32_t>()},
                                    {"d", Orvel::typeOf<double>()},
                                    {"b", Orvel::typeOf<bool>()}};
  const Orvel::Type type = Orvel::makeStructType(Orvel::String("Math::float2"), members);
  const Orvel::Value values[]{Orvel::makeValue(1.5F), Orvel::makeValue(std::int32_t{2}),
                              Orvel::makeValue(0.25), Orvel::makeValue(true)};
  PortHost host(session);
  expect(host.reportValue(Orvel::makeStruct(type, values)), "the answer is true");
  expectText("line", host.lastText(), "Output port 'port': (Math::float2) {1.5, 2, 0.25, }");
}

void emptyStruct(Session& session) {
  const Orvel::Type type = Orvel::makeStructType(Orvel::String("Math::double2"), {});
  PortHost host(session);
  expect(host.reportValue(Orvel::makeZero(type)), "the answer is true");
  expectText("line", host.lastText(), "Output port 'port': (Math::double2) {}");
}

void portNamesStandBare(Session& session) {
  PortHost host(session);
  host.name = "it's";
  expect(host.reportAny(makeAny(true)), "the answer is true");
  expectText("line", host.lastText(), "Output port 'it's': (bool) true");
  expect(host.logger.fallbackEntry.outputs.contains("it's"), "the record has the port's name");
}

}  // namespace

void addValueTextChecks(CheckList& checks) {
  for (const ValueTextRow& row : valueTextRows) {
    checks.push_back(
        {std::string("value-text-") + row.name,
         "A floating number reads with six significant digits, the same in all widths.",
         [&row](Session& session) { numberReads(session, row); }});
  }
  checks.push_back({"value-text-integers", "Integers read in full.", integersReadInFull});
  checks.push_back({"value-text-vectors", "Components read as numbers do.", vectorsHaveNoSuffix});
  checks.push_back({"value-text-strings", "A string reads up to its first NUL, without escapes.",
                    stringsStandBare});
  checks.push_back({"value-text-struct-members",
                    "A vector value's members are read by their own types.",
                    structsWithOtherMembers});
  checks.push_back(
      {"value-text-empty-struct", "A vector value without members is two braces.", emptyStruct});
  checks.push_back(
      {"value-text-port-name", "A port's name stands in the line as it is.", portNamesStandBare});
}

}  // namespace vtlcmd::validator
