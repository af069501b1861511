#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/built_text.h"
#include "support/floating_environment.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/output/statistics/array_statistics.h"

namespace vtlcmd {
namespace {

using testing::FloatingEnvironment;

/// Long enough for every kernel.
constexpr int length = 1000;

template <typename T>
std::string statisticsOf(const std::vector<T>& elements) {
  return testing::builtText(
      [&](TextBuilder& text) { printArrayStatistics(text, *testing::arrayOf<T>(elements)); });
}

template <typename T>
class StatisticsEnvironment : public ::testing::Test {};

template <typename T>
using IsReported = std::bool_constant<Registered<T> && Summarised<T>>;
TYPE_TEST_SUITE(StatisticsEnvironment, testing::TestTypesWhere<IsReported>);

TYPE_TEST(StatisticsEnvironment, StaysAsItWas) {
  const std::vector<TypeParam> elements(length, testing::sampleValue<TypeParam>(0));
  testing::inEachEnvironment([&] {
    const std::uint32_t before = FloatingEnvironment::settings();
    statisticsOf(elements);
    EXPECT_EQ(FloatingEnvironment::settings(), before);
  });
}

/// Whole numbers of few bits have no rounding in them.
TYPE_TEST(StatisticsEnvironment, DoesNotChangeWhatIsExact) {
  std::vector<TypeParam> elements;
  for (int i = 0; i < 1024; ++i) {
    if constexpr (requires { TypeParam::componentCount; }) {
      TypeParam vector{};
      vector.components[0] = static_cast<float>(i % 2);
      elements.push_back(vector);
    } else {
      elements.push_back(static_cast<TypeParam>(i % 2));
    }
  }
  const std::string expected = statisticsOf(elements);
  testing::inEachEnvironment([&] { EXPECT_EQ(statisticsOf(elements), expected); });
}

}  // namespace
}  // namespace vtlcmd
