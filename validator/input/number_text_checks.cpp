#include <iterator>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

/// A text and how its value reads, by type; null where the type refuses it.
struct NumberTextRow {
  const char* name;
  const char* text;
  const char* asInt;
  const char* asUint;
  const char* asLong;
  const char* asUlong;
  const char* asFloat;
  const char* asDouble;
  const char* asBool;
};

constexpr const char* no = nullptr;

constexpr NumberTextRow numberTextRows[]{
    // clang-format off
    {"empty", "", no, no, no, no, no, no, no},
    {"blanks", "   ", no, no, no, no, no, no, no},
    {"plain", "12", "12", "12", "12", "12", "12", "12", no},
    {"blanks-around", " 12 ", "12", "12", "12", "12", "12", "12", no},
    {"white-space-around", "\t\n\v\f\r12\t\n\v\f\r", "12", "12", "12", "12", "12", "12", no},
    {"plus", "+1", "1", "1", "1", "1", "1", "1", no},
    {"minus", "-1", "-1", no, "-1", no, "-1", "-1", no},
    {"minus-behind-blanks", "  -1", "-1", no, "-1", no, "-1", "-1", no},
    {"minus-zero", "-0", "0", no, "0", no, "-0", "-0", no},
    {"two-signs", "+-1", no, no, no, no, no, no, no},
    {"sign-and-blank", "- 1", no, no, no, no, no, no, no},
    {"leading-zero", "010", "10", "10", "10", "10", "10", "10", no},
    {"hexadecimal", "0x10", no, no, no, no, "16", "16", no},
    {"exponent", "1e3", no, no, no, no, "1000", "1000", no},
    {"fraction", "1.5", no, no, no, no, "1.5", "1.5", no},
    {"point-first", "-.5", no, no, no, no, "-0.5", "-0.5", no},
    {"two-numbers", "12 34", no, no, no, no, no, no, no},
    {"trailing-letters", "12abc", no, no, no, no, no, no, no},
    {"letters", "abc", no, no, no, no, no, no, no},
    {"infinity", "inf", no, no, no, no, no, no, no},
    {"infinity-long", "-infinity", no, no, no, no, no, no, no},
    {"not-a-number", "nan", no, no, no, no, no, no, no},
    {"overflow", "1e999", no, no, no, no, no, no, no},
    {"true", "true", no, no, no, no, no, no, "true"},
    {"false", "false", no, no, no, no, no, no, "false"},
    {"upper-case-true", "TRUE", no, no, no, no, no, no, no},
    {"one", "1", "1", "1", "1", "1", "1", "1", no},
    {"blank-true", " true", no, no, no, no, no, no, no},
    {"true-blank", "true ", no, no, no, no, no, no, no},
    {"int-maximum", "2147483647", "2147483647", "2147483647", "2147483647", "2147483647", "2.14748e+09", "2.14748e+09", no},
    {"int-above", "2147483648", no, "2147483648", "2147483648", "2147483648", "2.14748e+09", "2.14748e+09", no},
    {"int-minimum", "-2147483648", "-2147483648", no, "-2147483648", no, "-2.14748e+09", "-2.14748e+09", no},
    {"int-below", "-2147483649", no, no, "-2147483649", no, "-2.14748e+09", "-2.14748e+09", no},
    {"uint-maximum", "4294967295", no, "4294967295", "4294967295", "4294967295", "4.29497e+09", "4.29497e+09", no},
    {"uint-above", "4294967296", no, no, "4294967296", "4294967296", "4.29497e+09", "4.29497e+09", no},
    {"long-maximum", "9223372036854775807", no, no, "9223372036854775807", "9223372036854775807", "9.22337e+18", "9.22337e+18", no},
    {"long-above", "9223372036854775808", no, no, no, "9223372036854775808", "9.22337e+18", "9.22337e+18", no},
    {"long-minimum", "-9223372036854775808", no, no, "-9223372036854775808", no, "-9.22337e+18", "-9.22337e+18", no},
    {"long-below", "-9223372036854775809", no, no, no, no, "-9.22337e+18", "-9.22337e+18", no},
    {"ulong-maximum", "18446744073709551615", no, no, no, "18446744073709551615", "1.84467e+19", "1.84467e+19", no},
    {"ulong-above", "18446744073709551616", no, no, no, no, "1.84467e+19", "1.84467e+19", no},
    {"float-maximum", "3.4028234663852886e+38", no, no, no, no, "3.40282e+38", "3.40282e+38", no},
    {"float-above", "3.4028235e+38", no, no, no, no, no, "3.40282e+38", no},
    {"float-far-above", "1e39", no, no, no, no, no, "1e+39", no},
    {"float-minimum", "1.1754943508222875e-38", no, no, no, no, "1.17549e-38", "1.17549e-38", no},
    {"float-subnormal", "1e-40", no, no, no, no, no, "1e-40", no},
    {"double-maximum", "1.7976931348623157e+308", no, no, no, no, no, "1.79769e+308", no},
    {"double-above", "1e309", no, no, no, no, no, no, no},
    {"double-minimum", "2.2250738585072014e-308", no, no, no, no, no, "2.22507e-308", no},
    {"double-subnormal", "1e-310", no, no, no, no, no, no, no},
    {"floating-zero", "0e999", no, no, no, no, "0", "0", no},
    // clang-format on
};

template <Registered T>
void expectAnswer(Session& session, const NumberTextRow& row, const char* report) {
  const auto& type = valueType<T>();
  const std::string name = type.name;
  PortHost host(session);
  host.giveText(row.text);
  const bool answer = host.setInput(Orvel::typeOf<T>());
  const std::string line = report == nullptr
                               ? "error Input port 'port' (" + name + "): Unable to convert '" +
                                     row.text + type.parseErrorEnd
                               : "verbose Set input port 'port': (" + name + ") " + report;
  expectLines("a port of " + name, host.messages(), {line});
  expect(answer == (report != nullptr), "the answer of a port of " + name + " tells of its value");
  expect((anyCast<T>(&host.value) != nullptr) == answer, "the result of " + name + " goes with it");
}

void expectAnswers(Session& session, const NumberTextRow& row) {
  expectAnswer<std::int32_t>(session, row, row.asInt);
  expectAnswer<std::uint32_t>(session, row, row.asUint);
  expectAnswer<std::int64_t>(session, row, row.asLong);
  expectAnswer<std::uint64_t>(session, row, row.asUlong);
  expectAnswer<float>(session, row, row.asFloat);
  expectAnswer<double>(session, row, row.asDouble);
  expectAnswer<bool>(session, row, row.asBool);
}

}  // namespace

void addNumberTextChecks(CheckList& checks) {
  for (const NumberTextRow& row : numberTextRows) {
    checks.push_back({std::string("number-text-") + row.name,
                      "Each scalar port takes or refuses such a text by the rules of its type.",
                      [&row](Session& session) { expectAnswers(session, row); }});
  }
}

}  // namespace vtlcmd::validator
