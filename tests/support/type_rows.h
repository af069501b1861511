#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>

#include "vtlcmd/host/value_types.h"

/// The columns of the type lists a second time, as hosts expect them, and values to try: a row of a
/// list in value_types.h wants its row in the same place here, and nothing else in the tests.

namespace vtlcmd::testing {

struct Tag {
  std::string_view spelling;
  int kind;
};

template <typename T>
struct Sample {
  T value;
  /// What a port of T takes for it; null where values have no text form.
  const char* text;
  /// How it reads in a report.
  const char* report;
};

template <typename T>
struct RegisteredRow {
  using Type = T;

  const char* name;
  Tag tag;
  std::size_t components;
  ArrayClass arrayClass;
  const char* parseErrorEnd;
  std::size_t reportPlace;
  bool isInPlace;
  Sample<T> samples[2];
  /// How the type's zero reads in a report.
  const char* zeroReport;
};

template <typename T>
struct InputOnlyRow {
  using Type = T;

  const char* name;
  Tag tag;
};

template <typename T>
struct ReportOnlyRow {
  using Type = T;

  const char* name;
  Tag tag;
  ArrayClass arrayClass;
  std::size_t reportPlace;
};

using Vantrel::Math::Matrix;
using Vantrel::Math::Vector;

// clang-format off
inline const std::tuple registeredRows{
    RegisteredRow<bool>{
        "bool", {"_N", 0}, 1, ArrayClass::summarised, "' to a bool value.", 9, true,
        {{true, "true", "true"}, {false, "false", "false"}}, "false"},
    RegisteredRow<float>{
        "float", {"M", 0}, 1, ArrayClass::summarised, "' to a float value.", 11, true,
        {{1.5F, "1.5", "1.5"}, {-2e10F, "-2e10", "-2e+10"}}, "0"},
    RegisteredRow<double>{
        "double", {"N", 0}, 1, ArrayClass::summarised, "' to a double value.", 12, true,
        {{2.25, "2.25", "2.25"}, {1e300, "1e300", "1e+300"}}, "0"},
    RegisteredRow<std::int32_t>{
        "int", {"H", 0}, 1, ArrayClass::summarised, "' to an int value.", 3, true,
        {{-12, "-12", "-12"}, {7, "7", "7"}}, "0"},
    RegisteredRow<std::uint32_t>{
        "uint", {"I", 0}, 1, ArrayClass::summarised, "' to a uint value.", 7, true,
        {{12, "12", "12"}, {4294967295, "4294967295", "4294967295"}}, "0"},
    RegisteredRow<std::int64_t>{
        "long", {"_J", 0}, 1, ArrayClass::summarised, "' to a long value.", 4, true,
        {{-9000000000, "-9000000000", "-9000000000"}, {1, "1", "1"}}, "0"},
    RegisteredRow<std::uint64_t>{
        "ulong", {"_K", 0}, 1, ArrayClass::summarised, "' to a ulong value.", 8, true,
        {{18446744073709551615U, "18446744073709551615", "18446744073709551615"}, {2, "2", "2"}}, "0"},
    RegisteredRow<Vector<float, 2>>{
        "Math::float2", {"Ufloat2@Math@Vantrel@@", 0}, 2, ArrayClass::summarised, "' to a float value.", 17, true,
        {{{{1, 2.5F}}, "1,2.5", "{1, 2.5}"}, {{{3, 4}}, "3,4", "{3, 4}"}}, "{0, 0}"},
    RegisteredRow<Vector<float, 3>>{
        "Math::float3", {"Ufloat3@Math@Vantrel@@", 0}, 3, ArrayClass::summarised, "' to a float value.", 19, true,
        {{{{1, 2.5F, 3}}, "1,2.5,3", "{1, 2.5, 3}"}, {{{4, 5, 6}}, "4,5,6", "{4, 5, 6}"}}, "{0, 0, 0}"},
    RegisteredRow<Vector<float, 4>>{
        "Math::float4", {"Ufloat4@Math@Vantrel@@", 0}, 4, ArrayClass::summarised, "' to a float value.", 18, true,
        {{{{1, 2.5F, 3, 4}}, "1,2.5,3,4", "{1, 2.5, 3, 4}"}, {{{5, 6, 7, 8}}, "5,6,7,8", "{5, 6, 7, 8}"}}, "{0, 0, 0, 0}"},
    RegisteredRow<Vector<double, 2>>{
        "Math::double2", {"Udouble2@Math@Vantrel@@", 0}, 2, ArrayClass::refused, "' to a double value.", 24, true,
        {{{{1, 2.5}}, "1,2.5", "{1, 2.5}"}, {{{3, 4}}, "3,4", "{3, 4}"}}, "{0, 0}"},
    RegisteredRow<Vector<double, 3>>{
        "Math::double3", {"Udouble3@Math@Vantrel@@", 0}, 3, ArrayClass::refused, "' to a double value.", 25, true,
        {{{{1, 2.5, 3}}, "1,2.5,3", "{1, 2.5, 3}"}, {{{4, 5, 6}}, "4,5,6", "{4, 5, 6}"}}, "{0, 0, 0}"},
    RegisteredRow<Vector<double, 4>>{
        "Math::double4", {"Udouble4@Math@Vantrel@@", 0}, 4, ArrayClass::refused, "' to a double value.", 26, false,
        {{{{1, 2.5, 3, 4}}, "1,2.5,3,4", "{1, 2.5, 3, 4}"}, {{{5, 6, 7, 8}}, "5,6,7,8", "{5, 6, 7, 8}"}}, "{0, 0, 0, 0}"},
    RegisteredRow<Orvel::Ptr<Vantrel::Object>>{
        "Object", {"VObject@Vantrel@@", 2}, 0, ArrayClass::listed, nullptr, 0, true,
        {{{}, nullptr, "{\n}"}, {{}, nullptr, "{\n}"}}, "{\n  No object produced, verify your inputs.\n}"},
    RegisteredRow<Orvel::String>{
        "string", {"VString@Orvel@@", 0}, 1, ArrayClass::listed, nullptr, 10, true,
        {{"some text", "some text", "\"some text\""}, {"other", "other", "\"other\""}}, "\"\""},
};

inline constexpr std::tuple inputOnlyRows{
    InputOnlyRow<Vantrel::Simulation::Time>{"Simulation::Time", {"UTime@Simulation@Vantrel@@", 0}},
    InputOnlyRow<Vantrel::File::Project::SceneInfo>{"File::Project::SceneInfo", {"USceneInfo@Project@File@Vantrel@@", 0}},
};

inline constexpr std::tuple reportOnlyRows{
    ReportOnlyRow<std::int8_t>{"signed char", {"C", 0}, ArrayClass::refused, 1},
    ReportOnlyRow<std::uint8_t>{"unsigned char", {"E", 0}, ArrayClass::refused, 5},
    ReportOnlyRow<std::int16_t>{"short", {"F", 0}, ArrayClass::summarised, 2},
    ReportOnlyRow<std::uint16_t>{"ushort", {"G", 0}, ArrayClass::summarised, 6},
    ReportOnlyRow<Vector<std::int32_t, 2>>{"Math::int2", {"Uint2@Math@Vantrel@@", 0}, ArrayClass::refused, 13},
    ReportOnlyRow<Vector<std::int32_t, 3>>{"Math::int3", {"Uint3@Math@Vantrel@@", 0}, ArrayClass::refused, 16},
    ReportOnlyRow<Matrix<std::int32_t, 2, 2>>{"Math::int2x2", {"Uint2x2@Math@Vantrel@@", 0}, ArrayClass::refused, 14},
    ReportOnlyRow<Matrix<std::int32_t, 2, 3>>{"Math::int2x3", {"Uint2x3@Math@Vantrel@@", 0}, ArrayClass::refused, 15},
    ReportOnlyRow<Vector<std::int16_t, 2>>{"Math::short2", {"Ushort2@Math@Vantrel@@", 0}, ArrayClass::refused, 31},
    ReportOnlyRow<Vector<std::int16_t, 3>>{"Math::short3", {"Ushort3@Math@Vantrel@@", 0}, ArrayClass::refused, 34},
    ReportOnlyRow<Matrix<std::int16_t, 2, 2>>{"Math::short2x2", {"Ushort2x2@Math@Vantrel@@", 0}, ArrayClass::refused, 32},
    ReportOnlyRow<Matrix<std::int16_t, 2, 3>>{"Math::short2x3", {"Ushort2x3@Math@Vantrel@@", 0}, ArrayClass::refused, 33},
    ReportOnlyRow<Vector<std::uint8_t, 3>>{"Math::uchar3", {"Uuchar3@Math@Vantrel@@", 0}, ArrayClass::refused, 35},
    ReportOnlyRow<Vector<std::uint8_t, 4>>{"Math::uchar4", {"Uuchar4@Math@Vantrel@@", 0}, ArrayClass::refused, 36},
    ReportOnlyRow<Matrix<float, 2, 2>>{"Math::float2x2", {"Ufloat2x2@Math@Vantrel@@", 0}, ArrayClass::refused, 20},
    ReportOnlyRow<Matrix<float, 2, 3>>{"Math::float2x3", {"Ufloat2x3@Math@Vantrel@@", 0}, ArrayClass::refused, 21},
    ReportOnlyRow<Matrix<float, 3, 3>>{"Math::float3x3", {"Ufloat3x3@Math@Vantrel@@", 0}, ArrayClass::refused, 22},
    ReportOnlyRow<Matrix<float, 4, 4>>{"Math::float4x4", {"Ufloat4x4@Math@Vantrel@@", 0}, ArrayClass::refused, 23},
    ReportOnlyRow<Matrix<double, 2, 2>>{"Math::double2x2", {"Udouble2x2@Math@Vantrel@@", 0}, ArrayClass::refused, 27},
    ReportOnlyRow<Matrix<double, 2, 3>>{"Math::double2x3", {"Udouble2x3@Math@Vantrel@@", 0}, ArrayClass::refused, 28},
    ReportOnlyRow<Matrix<double, 3, 3>>{"Math::double3x3", {"Udouble3x3@Math@Vantrel@@", 0}, ArrayClass::refused, 29},
    ReportOnlyRow<Matrix<double, 4, 4>>{"Math::double4x4", {"Udouble4x4@Math@Vantrel@@", 0}, ArrayClass::refused, 30},
};
// clang-format on

}  // namespace vtlcmd::testing
