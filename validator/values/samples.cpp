#include "values/samples.h"

#include <array>
#include <tuple>

#include "values/arrays.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

template <Registered T>
T sampleValue() {
  if constexpr (std::is_same_v<T, bool>) {
    return true;
  } else if constexpr (std::is_same_v<T, float>) {
    return 1.5F;
  } else if constexpr (std::is_same_v<T, double>) {
    return 2.25;
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return -12;
  } else if constexpr (std::is_same_v<T, std::uint32_t>) {
    return 4294967295U;
  } else if constexpr (std::is_same_v<T, std::int64_t>) {
    return -9000000000;
  } else if constexpr (std::is_same_v<T, std::uint64_t>) {
    return 18446744073709551615U;
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    return "some, \"text\"";
  } else {
    T vector;
    for (std::size_t i = 0; i < T::componentCount; ++i)
      vector.components[i] = static_cast<typename T::ComponentType>(i == 1 ? 2.5 : double(i) + 1);
    return vector;
  }
}

template <Registered T>
Any makeSampleAny(std::uint32_t rank) {
  const T value = sampleValue<T>();
  switch (rank) {
    case 0:
      return makeAny<T>(value);
    case 1:
      return makeAny(nestedArray<T, 1>(value));
    case 2:
      return makeAny(nestedArray<T, 2>(value));
    default:
      return makeAny(nestedArray<T, 3>(value));
  }
}

template <Registered T>
Orvel::Value makeSampleValue() {
  return Orvel::makeValue<T>(sampleValue<T>());
}

template <Registered T>
Any makeZeroAny() {
  return makeAny<T>(zeroValue<T>());
}

template <Registered T>
Any makeEmptyArray() {
  return makeAny(arrayOf<T>({}));
}

template <Registered T>
Any makeEmptyRows() {
  const auto empty = arrayOf<T>({});
  return makeAny(arrayOf<StoredArray<T, 1>>({empty, empty}));
}

template <Registered T>
bool holdSame(const Any& a, const Any& b) {
  const T* first = anyCast<T>(&a);
  const T* second = anyCast<T>(&b);
  if (first == nullptr || second == nullptr) return false;
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return (first->get() == nullptr) == (second->get() == nullptr);
  } else {
    return *first == *second;
  }
}

template <Registered T>
constexpr Sample sampleOf(const char* text, const char* report, const char* badText,
                          const char* badPiece, const char* zeroReport) {
  const auto& row = valueType<T>();
  return {row.name,
          row.components,
          row.arrayClass,
          row.parseErrorEnd,
          text,
          report,
          badText,
          badPiece,
          zeroReport,
          Orvel::typeOf<T>,
          makeSampleAny<T>,
          makeSampleValue<T>,
          makeZeroAny<T>,
          makeEmptyArray<T>,
          makeEmptyRows<T>,
          holdSame<T>};
}

constexpr std::array allSamples{
    // clang-format off
    sampleOf<bool>("true", "true", "yes", "yes", "false"),
    sampleOf<float>("1.5", "1.5", "1.5x", "1.5x", "0"),
    sampleOf<double>("2.25", "2.25", "inf", "inf", "0"),
    sampleOf<std::int32_t>("-12", "-12", "12abc", "12abc", "0"),
    sampleOf<std::uint32_t>("4294967295", "4294967295", "-1", "-1", "0"),
    sampleOf<std::int64_t>("-9000000000", "-9000000000", "1e3", "1e3", "0"),
    sampleOf<std::uint64_t>("18446744073709551615", "18446744073709551615", "0x10", "0x10", "0"),
    sampleOf<Math::float2>("1,2.5", "{1, 2.5}", "1,x", "x", "{0, 0}"),
    sampleOf<Math::float3>("1,2.5,3", "{1, 2.5, 3}", "1,x,3", "x", "{0, 0, 0}"),
    sampleOf<Math::float4>("1,2.5,3,4", "{1, 2.5, 3, 4}", "1,2,,4", "", "{0, 0, 0, 0}"),
    sampleOf<Math::double2>("1,2.5", "{1, 2.5}", " y,2", " y", "{0, 0}"),
    sampleOf<Math::double3>("1,2.5,3", "{1, 2.5, 3}", "1,2,nan", "nan", "{0, 0, 0}"),
    sampleOf<Math::double4>("1,2.5,3,4", "{1, 2.5, 3, 4}", "1,2,3,4 5", "4 5", "{0, 0, 0, 0}"),
    sampleOf<ObjectPtr>(nullptr, "{\n}", "{}", nullptr, "{\n}"),
    sampleOf<Orvel::String>("some, \"text\"", R"("some, "text"")", nullptr, nullptr, "\"\""),
    // clang-format on
};
static_assert(allSamples.size() == std::tuple_size_v<decltype(registeredTypes)>);

}  // namespace

std::span<const Sample> samples() { return allSamples; }

}  // namespace vtlcmd::validator
