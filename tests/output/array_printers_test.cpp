#include "vtlcmd/output/array_printers.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "support/allocation_count.h"
#include "support/built_text.h"
#include "support/text_room.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "support/watched_array.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd {
namespace {

using testing::arrayOf;
using testing::nestedArray;
using testing::rowOf;
using testing::sampleValue;

constexpr std::uint32_t unlimited = 4294967295;

template <typename T, std::uint32_t Rank>
std::string print(const StoredArray<T, Rank>& array, std::uint32_t limit) {
  VtlCmdLogger logger(limit);
  const Any any = makeAny(array);
  TextBuilder text(0);
  printArray<T, Rank>(text, &any, &logger);
  EXPECT_TRUE(logger.messages.empty());
  return text.text();
}

template <typename T>
std::string printValue(const Orvel::Value& value, std::size_t depth, std::uint32_t limit) {
  VtlCmdLogger logger(limit);
  return testing::builtText(
      [&](TextBuilder& text) { printArrayValue<T>(text, value, depth, &logger); });
}

std::string note(std::uint64_t shown, std::uint64_t total, const std::string& word) {
  return "(" + std::to_string(shown) + " out of " + std::to_string(total) + " " + word + ")";
}

std::string list(const std::string& head, const std::string& elements) {
  return "\n" + head + "[\n" + elements + " ]\n";
}

/// Looks at an array's use count whenever the text that is built grows.
template <typename T>
class UseCountWatch {
 public:
  explicit UseCountWatch(const Orvel::Ptr<Orvel::Array<T>>& array) : array_(array) {
    testing::watchAllocations(
        [](void* self) {
          auto& watch = *static_cast<UseCountWatch*>(self);
          watch.highest_ = std::max(watch.highest_, Orvel::useCount(watch.array_));
        },
        this);
  }
  UseCountWatch(const UseCountWatch&) = delete;
  UseCountWatch& operator=(const UseCountWatch&) = delete;
  ~UseCountWatch() { testing::watchAllocations(nullptr, nullptr); }

  std::uint64_t highest() const { return highest_; }

 private:
  const Orvel::Ptr<Orvel::Array<T>>& array_;
  std::uint64_t highest_ = 0;
};

template <typename T>
class ArrayPrinters : public ::testing::Test {
 protected:
  std::string name() const { return valueType<T>().name; }
  /// What a level of elements, the lowest, shows when it has something to show.
  std::string lowest(const std::vector<T>& elements, std::uint64_t shown) const {
    switch (valueType<T>().arrayClass) {
      case ArrayClass::summarised:
        return statistics(elements);
      case ArrayClass::refused:
        return "{non supported array of " + name() + " }";
      case ArrayClass::listed:
        break;
    }
    std::string texts;
    for (std::uint64_t i = 0; i < shown; ++i) {
      const Any any = makeAny(elements[i]);
      texts += (i == 0 ? "" : ",\n") +
               testing::builtText([&](TextBuilder& text) { anyToText<T>(text, &any); });
    }
    return list(note(shown, elements.size(), name()), texts);
  }
  static std::string statistics(const std::vector<T>& elements) {
    TextBuilder text(0);
    if constexpr (Summarised<T>) printArrayStatistics(text, *arrayOf<T>(elements));
    return text.text();
  }

  std::vector<T> five_{sampleValue<T>(0), sampleValue<T>(1), sampleValue<T>(0), sampleValue<T>(1),
                       sampleValue<T>(0)};
};
TYPE_TEST_SUITE(ArrayPrinters, testing::RegisteredTestTypes);

TYPE_TEST(ArrayPrinters, EmptyArrayIsAShortNoteAtEveryRank) {
  using T = TypeParam;
  const std::string expected = note(0, 0, this->name());
  EXPECT_EQ((print<T, 1>(arrayOf<T>({}), 10)), expected);
  EXPECT_EQ((print<T, 2>(arrayOf<StoredArray<T, 1>>({}), 10)), expected);
  EXPECT_EQ((print<T, 3>(arrayOf<StoredArray<T, 2>>({}), 10)), expected);
}

TYPE_TEST(ArrayPrinters, EmptyValueNamesTheLevelBelow) {
  using T = TypeParam;
  EXPECT_EQ(printValue<T>(Orvel::makeValue(arrayOf<T>({})), 1, 10), note(0, 0, this->name()));
  EXPECT_EQ(printValue<T>(Orvel::makeValue(arrayOf<StoredArray<T, 1>>({})), 2, 10),
            note(0, 0, "array<" + this->name() + ">"));
}

TYPE_TEST(ArrayPrinters, LimitZeroIsAShortNoteOfAFilledArray) {
  using T = TypeParam;
  EXPECT_EQ((print<T, 1>(arrayOf<T>(this->five_), 0)), note(0, 5, this->name()));
  EXPECT_EQ(printValue<T>(Orvel::makeValue(arrayOf<T>(this->five_)), 1, 0),
            note(0, 5, this->name()));
  EXPECT_EQ((print<T, 2>(nestedArray<T, 2>(this->five_[0]), 0)), note(0, 1, this->name()));
  EXPECT_EQ((print<T, 3>(nestedArray<T, 3>(this->five_[0]), 0)), note(0, 1, this->name()));
}

TYPE_TEST(ArrayPrinters, LowestLevelGoesByItsClassAndTheLimitCapsListsAlone) {
  using T = TypeParam;
  const auto array = arrayOf<T>(this->five_);
  for (const std::uint32_t limit : {1U, 2U, 5U, 6U, unlimited}) {
    const std::string expected = this->lowest(this->five_, std::min(limit, 5U));
    EXPECT_EQ((print<T, 1>(array, limit)), expected);
    EXPECT_EQ(printValue<T>(Orvel::makeValue(array), 1, limit), expected);
  }
}

TYPE_TEST(ArrayPrinters, OuterLevelsAreListsUpToTheLimit) {
  using T = TypeParam;
  const auto row = arrayOf<T>(this->five_);
  const auto rows = arrayOf<StoredArray<T, 1>>({row, arrayOf<T>({}), row});
  const std::string filled = this->lowest(this->five_, 5);
  const std::string empty = note(0, 0, this->name());
  EXPECT_EQ((print<T, 2>(rows, 10)),
            list(note(3, 3, this->name()), filled + ",\n" + empty + ",\n" + filled));
  EXPECT_EQ(
      printValue<T>(Orvel::makeValue(rows), 2, 10),
      list(note(3, 3, "array<" + this->name() + ">"), filled + ",\n" + empty + ",\n" + filled));
  EXPECT_EQ((print<T, 2>(rows, 1)), list(note(1, 3, this->name()), this->lowest(this->five_, 1)));

  const auto cube = arrayOf<StoredArray<T, 2>>({rows, rows});
  const std::string inner =
      list(note(2, 3, this->name()), this->lowest(this->five_, 2) + ",\n" + empty);
  EXPECT_EQ((print<T, 3>(cube, 2)), list(note(2, 2, this->name()), inner + ",\n" + inner));
}

TYPE_TEST(ArrayPrinters, DeepValuesNestWithoutBound) {
  using T = TypeParam;
  Orvel::Value value = Orvel::makeValue(nestedArray<T, 1>(this->five_[0]));
  std::string expected = this->lowest({this->five_[0]}, 1);
  std::string word = this->name();
  for (std::size_t depth = 2; depth <= 5; ++depth) {
    word = "array<" + word + ">";
    value = Orvel::makeArray(value.getType(), std::array{value});
    expected = list(note(1, 1, word), expected);
    EXPECT_EQ(printValue<T>(value, depth, 10), expected);
  }
}

TYPE_TEST(ArrayPrinters, ArraysAreSharedNotCopied) {
  using T = TypeParam;
  const auto row = arrayOf<T>(this->five_);
  {
    const auto rows = arrayOf<StoredArray<T, 1>>({row, row});
    const auto* data = row->data;
    const Any any = makeAny(rows);
    const Orvel::Value value = Orvel::makeValue(rows);
    const auto before = Orvel::useCount(row);
    VtlCmdLogger logger(10);
    TextBuilder text(0);
    {
      const UseCountWatch<T> watch(row);
      printArray<T, 2>(text, &any, &logger);
      EXPECT_GE(watch.highest(), before + 2) << "the row's element and its printer hold it";
      EXPECT_LE(watch.highest(), before + 3) << "and no more than its holders need";
    }
    EXPECT_EQ(Orvel::useCount(row), before);
    printArrayValue<T>(text, value, 2, &logger);
    EXPECT_EQ(Orvel::useCount(row), before);
    EXPECT_EQ(row->data, data);
  }
  EXPECT_EQ(Orvel::useCount(row), 1U);
}

/// Of an array at a rank around `element`, printed both ways, with and without a limit.
template <typename T, std::uint32_t Rank>
void expectPrintingGivesUsesBack(const StoredArray<T, Rank - 1>& element) {
  testing::expectUsesGivenBack(element, [](const StoredArray<T, Rank>& array) {
    for (const std::uint32_t limit : {0U, 10U}) {
      print<T, Rank>(array, limit);
      printValue<T>(Orvel::makeValue(array), Rank, limit);
    }
  });
}

TYPE_TEST(ArrayPrinters, UsesOfArraysOfAnyRankAreGivenBack) {
  using T = TypeParam;
  for (const bool counted : {true, false}) {
    testing::WatchedArray<T> row;
    row.array.append(this->five_[0]);
    testing::WatchedArray<StoredArray<T, 1>> rows;
    rows.array.append(row.shared(counted));
    expectPrintingGivesUsesBack<T, 1>(this->five_[0]);
    expectPrintingGivesUsesBack<T, 2>(rows.array[0]);
    expectPrintingGivesUsesBack<T, 3>(rows.shared(counted));
    EXPECT_EQ(row.block.useCount, 1U);
    EXPECT_EQ(row.block.ends, 0);
    EXPECT_EQ(rows.block.ends, counted ? 1 : 0);
  }
}

TEST(ArrayPrinter, UsesOfListedObjectsAreGivenBack) {
  const ObjectPtr object = Vantrel::createObject();
  testing::WatchedBlock block;
  {
    const auto array = arrayOf<ObjectPtr>({{object.get(), &block}, {object.get(), nullptr}});
    EXPECT_EQ(block.ends, 0);
    const std::string expected = list(note(2, 2, "Object"), "{\n},\n{\n}");
    EXPECT_EQ((print<ObjectPtr, 1>(array, 10)), expected);
    EXPECT_EQ(printValue<ObjectPtr>(Orvel::makeValue(array), 1, 10), expected);
    EXPECT_EQ(block.useCount, 1U);
    EXPECT_EQ(block.ends, 0);
  }
  EXPECT_EQ(block.ends, 1);
}

TYPE_TEST(ArrayPrinters, AnyRoomWillDo) {
  using T = TypeParam;
  const auto row = arrayOf<T>({this->five_[0], this->five_[1]});
  const auto rows = arrayOf<StoredArray<T, 1>>({row, arrayOf<T>({})});
  const auto cube = arrayOf<StoredArray<T, 2>>({rows, arrayOf<StoredArray<T, 1>>({})});
  const auto expectBoth = [&]<std::uint32_t Rank>(const StoredArray<T, Rank>& array,
                                                  std::integral_constant<std::uint32_t, Rank>) {
    VtlCmdLogger logger(10);
    const Any any = makeAny(array);
    const Orvel::Value value = Orvel::makeValue(array);
    testing::expectAnyRoomWillDo(
        [&](TextBuilder& text) { printArray<T, Rank>(text, &any, &logger); });
    testing::expectAnyRoomWillDo(
        [&](TextBuilder& text) { printArrayValue<T>(text, value, Rank, &logger); });
  };
  expectBoth(arrayOf<T>({}), std::integral_constant<std::uint32_t, 1>{});
  expectBoth(row, std::integral_constant<std::uint32_t, 1>{});
  expectBoth(rows, std::integral_constant<std::uint32_t, 2>{});
  expectBoth(cube, std::integral_constant<std::uint32_t, 3>{});
}

TYPE_TEST(ArrayPrinters, DepthZeroIsTheSingleValuesText) {
  EXPECT_EQ(printValue<TypeParam>(Orvel::makeValue(sampleValue<TypeParam>(0)), 0, 10),
            rowOf<TypeParam>().samples[0].report);
}

TYPE_TEST(ArrayPrinters, TypeNameWrapsTheBaseName) {
  EXPECT_EQ(arrayTypeName<TypeParam>(0).c_str(), this->name());
  EXPECT_STREQ(arrayTypeName<TypeParam>(1).c_str(), ("array<" + this->name() + ">").c_str());
  EXPECT_STREQ(arrayTypeName<TypeParam>(2).c_str(), ("array<array<" + this->name() + ">>").c_str());
  EXPECT_STREQ(arrayTypeName<TypeParam>(3).c_str(),
               ("array<array<array<" + this->name() + ">>>").c_str());
}

TYPE_TEST(ArrayPrinters, ForeignElementNameLeavesNoStatistics) {
  const Orvel::Value texts = Orvel::makeValue(arrayOf<Orvel::String>({"a", "b"}));
  if (valueType<TypeParam>().arrayClass == ArrayClass::summarised) {
    EXPECT_EQ(printValue<TypeParam>(texts, 1, 10), "");
  } else if (valueType<TypeParam>().arrayClass == ArrayClass::refused) {
    EXPECT_EQ(printValue<TypeParam>(texts, 1, 10), "{non supported array of string }");
  }
}

}  // namespace
}  // namespace vtlcmd
