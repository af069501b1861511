#include <cstdint>
#include <limits>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "checks/type_names.h"
#include "host/port_host.h"
#include "values/arrays.h"

namespace vtlcmd::validator {
namespace {

/// An array and what its block says.
template <typename T>
struct StatisticsRow {
  const char* name;
  std::vector<T> elements;
  const char* minimum;
  const char* maximum;
  const char* average;
};

template <typename T>
void blockReads(Session& session, const StatisticsRow<T>& row) {
  const std::string name = valueType<T>().name;
  PortHost host(session);
  expect(host.reportAny(makeAny(arrayOf<T>(row.elements))), "the answer is true");
  expectText("line", host.lastText(),
             "Output port 'port': (array<" + name + ">) " + (std::is_same_v<T, bool> ? " (" : "(") +
                 std::to_string(row.elements.size()) + " " + name +
                 ")\n  {\n     min: " + row.minimum + "\n     max: " + row.maximum +
                 "\n     avg: " + row.average + "\n  }");
}

template <typename T>
void add(CheckList& checks, std::vector<StatisticsRow<T>> rows) {
  for (StatisticsRow<T>& row : rows) {
    checks.push_back({"statistics-" + nameOfType(valueType<T>().name) + "-" + row.name,
                      std::string("The block of such an array of ") + valueType<T>().name +
                          " is exact to the character.",
                      [row = std::move(row)](Session& session) { blockReads<T>(session, row); }});
  }
}

void countBeyondPrecision(Session& session) {
  PortHost host(session);
  auto array = Orvel::makeMutable<Orvel::Array<float>>();
  constexpr std::uint64_t count = (1U << 24) + 1;
  for (std::uint64_t i = 0; i < count; ++i) array->append(1);
  const Orvel::Ptr<Orvel::Array<float>> shared(std::move(array));
  expect(host.reportAny(makeAny(shared)), "the answer is true");
  expectText("line", host.lastText(),
             "Output port 'port': (array<float>) (16777217 float)\n  {\n     min: 1\n     max: "
             "1\n     avg: 1\n  }");
}

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

}  // namespace

void addStatisticsChecks(CheckList& checks) {
  add<std::int32_t>(checks,
                    {{"truncates", {1, 2}, "1", "2", "1"},
                     {"truncates-to-zero", {-1, -2}, "-2", "-1", "-1"},
                     {"wraps", {2147483647, 1}, "1", "2147483647", "-1073741824"},
                     {"single-precision", {16777217, 16777217}, "16777217", "16777217", "16777216"},
                     {"overflows", {2147483647}, "2147483647", "2147483647", "-2147483648"}});
  add<std::uint32_t>(checks, {{"low-bits", {4294967295U}, "4294967295", "4294967295", "0"},
                              {"unsigned", {1, 4294967294U}, "1", "4294967294", "2147483648"},
                              {"wraps", {4294967295U, 1}, "1", "4294967295", "0"}});
  add<std::int64_t>(
      checks,
      {{"overflows",
        {9223372036854775807},
        "9223372036854775807",
        "9223372036854775807",
        "-9223372036854775808"},
       {"wraps", {9223372036854775807, 1}, "1", "9223372036854775807", "-4611686018427387904"}});
  add<std::uint64_t>(checks, {{"direct", {5, 6}, "5", "6", "5"},
                              {"above-half",
                               {9223372036854775808U},
                               "9223372036854775808",
                               "9223372036854775808",
                               "9223372036854775808"},
                              {"back-added",
                               {13835058055282163712U},
                               "13835058055282163712",
                               "13835058055282163712",
                               "13835058055282163712"},
                              {"overflows",
                               {18446744073709551615U},
                               "18446744073709551615",
                               "18446744073709551615",
                               "9223372036854775808"}});
  add<float>(checks, {{"plain", {1.5F, 2.5F, 4}, "1.5", "4", "2.66667"},
                      {"first-zero", {0.0F, -0.0F}, "0", "0", "0"},
                      {"first-minus-zero", {-0.0F, 0.0F}, "-0", "-0", "0"},
                      {"later-nan", {1, nan, 3}, "1", "3", "nan"},
                      {"order", {16777216, 1, 1, -16777216}, "-1.67772e+07", "1.67772e+07", "0"}});
  add<double>(checks,
              {{"plain", {1, 2}, "1", "2", "1.5"},
               {"own-width", {16777216, 1, 1, -16777216}, "-1.67772e+07", "1.67772e+07", "0.5"}});
  add<Math::float2>(
      checks, {{"components", {{{1, 4}}, {{2, 0.5F}}}, "{1f, 0.5f}", "{2f, 4f}", "{1.5f, 2.25f}"}});
  add<Math::float3>(checks, {{"components",
                              {{{1, 4, 3}}, {{2, 0.5F, 3}}},
                              "{1f, 0.5f, 3f}",
                              "{2f, 4f, 3f}",
                              "{1.5f, 2.25f, 3f}"}});
  add<Math::float4>(checks, {{"components",
                              {{{1, 4, 3, -1}}, {{2, 0.5F, 3, 1e9F}}},
                              "{1f, 0.5f, 3f, -1f}",
                              "{2f, 4f, 3f, 1e+09f}",
                              "{1.5f, 2.25f, 3f, 5e+08f}"}});
  add<bool>(checks, {{"first-uncounted", {true, false, true}, "0", "1", "0"},
                     {"more-than-half", {false, true, true}, "0", "1", "1"},
                     {"half", {true, true, false}, "0", "1", "0"},
                     {"single", {true}, "1", "1", "0"}});
  checks.push_back({"statistics-large-count",
                    "Counts and sums beyond 2 to the 24th round in single precision.",
                    countBeyondPrecision});
}

}  // namespace vtlcmd::validator
