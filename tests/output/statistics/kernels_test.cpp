#include "vtlcmd/output/statistics/kernels.h"

#include <bit>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <utility>

#include "output/statistics/plain_totals.h"
#include "support/type_samples.h"
#include "support/type_tests.h"

namespace vtlcmd {
namespace {

using statistics::chosenKernels;
using statistics::KernelRow;
using statistics::runnableKernels;
using testing::Number;
using testing::Parts;

/// Compares every kernel of this machine with the plain rule; the texts only where they differ.
template <typename T>
::testing::AssertionResult agree(const std::vector<Number<T>>& numbers, std::size_t offset = 0) {
  const auto expected = testing::plainTotals<T>(numbers);
  for (const KernelRow& row : runnableKernels()) {
    const auto totals = testing::kernelTotals<T>(*row.kernels, numbers, offset);
    if (testing::sameBits<T>(totals, expected)) continue;
    return ::testing::AssertionFailure()
           << row.name << ", " << numbers.size() / Parts<T>::count << " elements, offset " << offset
           << ": " << ::testing::PrintToString(totals) << " instead of "
           << ::testing::PrintToString(expected);
  }
  return ::testing::AssertionSuccess();
}

/// Any bits, so that sums wrap and floats come in every size; NaNs are for tests of their own.
template <typename T>
std::vector<Number<T>> anyNumbers(std::mt19937_64& random, std::size_t elements) {
  std::vector<Number<T>> numbers(elements * Parts<T>::count);
  for (Number<T>& number : numbers) {
    do {
      const std::uint64_t bits = random();
      std::memcpy(&number, &bits, sizeof number);
    } while (number != number);
  }
  return numbers;
}

using Positions = std::vector<std::size_t>;

template <typename T>
class Kernels : public ::testing::Test {};
TYPE_TEST_SUITE(Kernels, testing::SummarisedTestTypes);

/// Elements that make each kernel take a step and leave a rest, whichever vectors it has.
template <typename T>
constexpr std::size_t stepAndRest = 40 + 256 / sizeof(Number<T>);

TYPE_TEST(Kernels, AgreeAtEveryLengthAndAlignment) {
  std::mt19937_64 random(1);
  constexpr std::size_t alignments = 64 / sizeof(Number<TypeParam>);
  for (std::size_t length = 1; length <= 300; ++length) {
    const auto numbers = anyNumbers<TypeParam>(random, length);
    for (std::size_t offset = 0; offset < alignments; ++offset)
      ASSERT_TRUE(agree<TypeParam>(numbers, offset));
  }
}

TYPE_TEST(Kernels, LeaveOutWhatIsBehindTheElements) {
  using Limits = std::numeric_limits<Number<TypeParam>>;
  constexpr std::size_t parts = Parts<TypeParam>::count;
  for (const Number<TypeParam> behind : {Limits::lowest(), Limits::max()}) {
    for (std::size_t length = 1; length <= stepAndRest<TypeParam>; ++length) {
      std::vector<Number<TypeParam>> numbers(length * parts, 1);
      const auto expected = testing::plainTotals<TypeParam>(numbers);
      numbers.insert(numbers.end(), 64, behind);
      const auto* elements = reinterpret_cast<const TypeParam*>(numbers.data());
      for (const KernelRow& row : runnableKernels()) {
        const auto totals = std::get<statistics::Kernel<TypeParam>>(*row.kernels)(elements, length);
        ASSERT_TRUE(testing::sameBits<TypeParam>(totals, expected)) << row.name << ", " << length;
      }
    }
  }
}

/// Where blocks begin and end: bools are counted in blocks of up to 255 times 256, floats in blocks
/// of up to 256 times 8.
template <typename T>
const Positions blockLengths{1023, 1024, 1025, 2048, 2049, 2050, 4097};
template <>
const Positions blockLengths<bool>{1024, 16320, 16321, 32641, 65279, 65280, 65281, 65536, 130561};

TYPE_TEST(Kernels, AgreeWhereBlocksMeet) {
  std::mt19937_64 random(2);
  for (const std::size_t length : blockLengths<TypeParam>)
    ASSERT_TRUE(agree<TypeParam>(anyNumbers<TypeParam>(random, length)));
}

TYPE_TEST(Kernels, AgreeOnWhatIsTheSameThroughout) {
  using Limits = std::numeric_limits<Number<TypeParam>>;
  for (const Number<TypeParam> number : {Limits::lowest(), Limits::max(), Number<TypeParam>{0},
                                         Number<TypeParam>{1}, Number<TypeParam>{2}}) {
    for (const std::size_t length : Positions{1, 2, 63, 300, blockLengths<TypeParam>.back()}) {
      const std::vector<Number<TypeParam>> numbers(length * Parts<TypeParam>::count, number);
      ASSERT_TRUE(agree<TypeParam>(numbers));
    }
  }
}

TYPE_TEST(Kernels, FindTheLeastAndTheGreatestAtEveryPosition) {
  using Limits = std::numeric_limits<Number<TypeParam>>;
  std::vector<Number<TypeParam>> numbers(stepAndRest<TypeParam> * Parts<TypeParam>::count, 1);
  for (Number<TypeParam>& number : numbers) {
    for (const Number<TypeParam> extreme : {Limits::lowest(), Limits::max()}) {
      number = extreme;
      ASSERT_TRUE(agree<TypeParam>(numbers));
    }
    number = 1;
  }
}

TEST(RunnableKernels, AreTheRowsUpToTheOneThatIsChosen) {
  ASSERT_FALSE(runnableKernels().empty());
  EXPECT_EQ(std::string(runnableKernels().front().name), "baseline");
  EXPECT_EQ(runnableKernels().back().kernels, chosenKernels);
}

template <typename T>
class FloatingKernels : public ::testing::Test {};
template <typename T>
using HasFloatingSums = std::bool_constant<Summarised<T> && std::is_floating_point_v<Number<T>>>;
TYPE_TEST_SUITE(FloatingKernels, testing::TestTypesWhere<HasFloatingSums>);

template <typename T>
using BitsOf = std::conditional_t<sizeof(Number<T>) == 8, std::uint64_t, std::uint32_t>;

/// Quiet and signalling, of both signs, with payloads of their own.
template <typename T>
std::vector<Number<T>> nans() {
  constexpr auto quiet = std::bit_cast<BitsOf<T>>(std::numeric_limits<Number<T>>::quiet_NaN());
  constexpr auto signalling =
      std::bit_cast<BitsOf<T>>(std::numeric_limits<Number<T>>::signaling_NaN());
  constexpr BitsOf<T> sign = BitsOf<T>{1} << (sizeof(BitsOf<T>) * 8 - 1);
  // By their bits: as an argument a signalling NaN may become a quiet one.
  const std::vector<BitsOf<T>> bits{
      quiet, quiet | sign, quiet | 5, quiet | sign | 6, signalling | 7, signalling | sign | 8};
  std::vector<Number<T>> numbers(bits.size());
  std::memcpy(numbers.data(), bits.data(), bits.size() * sizeof bits[0]);
  return numbers;
}

TYPE_TEST(FloatingKernels, AgreeOnNanAtEveryPosition) {
  std::mt19937_64 random(3);
  for (const std::size_t length : Positions{1, 2, 7, 20, 27}) {
    const auto numbers = anyNumbers<TypeParam>(random, length);
    for (const Number<TypeParam>& nan : nans<TypeParam>()) {
      for (std::size_t i = 0; i < numbers.size(); ++i) {
        auto withNan = numbers;
        std::memcpy(&withNan[i], &nan, sizeof nan);
        ASSERT_TRUE(agree<TypeParam>(withNan)) << "position " << i;
      }
    }
  }
}

TYPE_TEST(FloatingKernels, AgreeOnWhichOfTwoNansStays) {
  const auto kinds = nans<TypeParam>();
  constexpr std::size_t length = 26;
  constexpr std::size_t parts = Parts<TypeParam>::count;
  for (std::size_t i = 0; i < length; ++i) {
    for (std::size_t k = 0; k < length; ++k) {
      std::vector<Number<TypeParam>> numbers(length * parts, 1);
      for (std::size_t part = 0; part < parts; ++part) {
        std::memcpy(&numbers[i * parts + part], &kinds[(i + part) % kinds.size()],
                    sizeof numbers[0]);
        std::memcpy(&numbers[k * parts + part], &kinds[(k + part + 1) % kinds.size()],
                    sizeof numbers[0]);
      }
      ASSERT_TRUE(agree<TypeParam>(numbers)) << "positions " << i << " and " << k;
    }
  }
}

TYPE_TEST(FloatingKernels, FindTheLeastAndTheGreatestWhereSumsAreNans) {
  using Limits = std::numeric_limits<Number<TypeParam>>;
  constexpr std::size_t parts = Parts<TypeParam>::count;
  // One element, two or one vectors, and a rest, whichever vectors a kernel has.
  constexpr std::size_t length = 12;
  for (std::size_t components = 1; components < 1U << parts; ++components) {
    for (const std::size_t position : Positions{1, 9}) {
      std::vector<Number<TypeParam>> numbers(length * parts, 1);
      for (std::size_t part = 0; part < parts; ++part)
        if ((components >> part & 1U) != 0) numbers[position * parts + part] = Limits::quiet_NaN();
      for (Number<TypeParam>& number : numbers) {
        for (const Number<TypeParam> extreme : {Limits::lowest(), Limits::max()}) {
          const Number<TypeParam> before = std::exchange(number, extreme);
          ASSERT_TRUE(agree<TypeParam>(numbers)) << "position " << &number - numbers.data();
          number = before;
        }
      }
    }
  }
}

TYPE_TEST(FloatingKernels, AgreeOnNanPastTheFirstBlock) {
  std::vector<Number<TypeParam>> numbers(5000 * Parts<TypeParam>::count, 1);
  for (const std::size_t i : Positions{0, 1, 2047, 2048, 2049, 4096, 4999}) {
    auto withNans = numbers;
    withNans[i * Parts<TypeParam>::count] = nans<TypeParam>()[1];
    withNans.back() = nans<TypeParam>()[2];
    ASSERT_TRUE(agree<TypeParam>(withNans)) << "position " << i;
  }
}

TYPE_TEST(FloatingKernels, KeepTheFirstOfTwoZerosAtEveryPairOfPositions) {
  constexpr std::size_t length = 26;
  constexpr std::size_t parts = Parts<TypeParam>::count;
  const Number<TypeParam> zero = 0;
  for (const Number<TypeParam> rest : {Number<TypeParam>{1}, Number<TypeParam>{-1}}) {
    for (const Number<TypeParam> first : {zero, -zero}) {
      for (std::size_t i = 0; i < length; ++i) {
        for (std::size_t k = i + 1; k < length; ++k) {
          std::vector<Number<TypeParam>> numbers(length * parts, rest);
          // Each component has its own order.
          for (std::size_t part = 0; part < parts; ++part) {
            numbers[i * parts + part] = part % 2 == 0 ? first : -first;
            numbers[k * parts + part] = part % 2 == 0 ? -first : first;
          }
          ASSERT_TRUE(agree<TypeParam>(numbers)) << "positions " << i << " and " << k;
        }
      }
    }
  }
}

TYPE_TEST(FloatingKernels, TakeNoNanForTheFirstZero) {
  constexpr std::size_t length = 26;
  constexpr std::size_t parts = Parts<TypeParam>::count;
  for (const Number<TypeParam> rest : {Number<TypeParam>{1}, Number<TypeParam>{-1}}) {
    for (std::size_t zero = 1; zero < length; ++zero) {
      std::vector<Number<TypeParam>> numbers(length * parts, rest);
      for (std::size_t part = 0; part < parts; ++part) {
        for (std::size_t i = 1; i < zero; ++i) numbers[i * parts + part] = nans<TypeParam>()[0];
        numbers[zero * parts + part] = 0;
      }
      ASSERT_TRUE(agree<TypeParam>(numbers)) << "position " << zero;
    }
  }
}

TYPE_TEST(FloatingKernels, KeepTheFirstOfTwoZerosInBlocksOfTheirOwn) {
  constexpr std::size_t parts = Parts<TypeParam>::count;
  const Number<TypeParam> zero = 0;
  for (const Number<TypeParam> first : {zero, -zero}) {
    for (const std::size_t i : Positions{0, 1, 2048, 2049}) {
      for (const std::size_t k : Positions{2051, 4096, 4097, 4199}) {
        for (const Number<TypeParam> rest : {Number<TypeParam>{1}, Number<TypeParam>{-1}}) {
          std::vector<Number<TypeParam>> numbers(4200 * parts, rest);
          numbers[i * parts] = first;
          numbers[k * parts] = -first;
          ASSERT_TRUE(agree<TypeParam>(numbers)) << "positions " << i << " and " << k;
        }
      }
    }
  }
}

TYPE_TEST(FloatingKernels, AgreeOnInfinitiesAtEveryPairOfPositions) {
  constexpr std::size_t parts = Parts<TypeParam>::count;
  constexpr auto infinite = std::numeric_limits<Number<TypeParam>>::infinity();
  for (std::size_t i = 0; i < 20; ++i) {
    for (std::size_t k = 0; k < 20; ++k) {
      for (const Number<TypeParam> second : {infinite, -infinite}) {
        std::vector<Number<TypeParam>> numbers(20 * parts, 1);
        numbers[i * parts] = infinite;
        numbers[k * parts] = second;
        ASSERT_TRUE(agree<TypeParam>(numbers)) << "positions " << i << " and " << k;
      }
    }
  }
}

}  // namespace
}  // namespace vtlcmd
