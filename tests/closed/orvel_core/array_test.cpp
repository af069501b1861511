#include <gtest/gtest.h>
#include <memory>
#include <utility>

#include "host/imports/orvel_array.h"
#include "host/imports/orvel_string.h"

namespace Orvel {
namespace {

TEST(Array, GrowsByDoublingFromOne) {
  Array<String> array;
  EXPECT_EQ(array.capacity, 0U);
  EXPECT_EQ(array.data, nullptr);
  for (const std::uint64_t capacity : {1U, 2U, 4U, 4U, 8U, 8U, 8U, 8U, 16U}) {
    array.append("element");
    EXPECT_EQ(array.capacity, capacity);
  }
  EXPECT_EQ(array.size, 9U);
}

TEST(Array, GrowthMovesTheElements) {
  Array<String> array;
  array.append("first");
  const char* characters = array[0].c_str();
  for (int i = 0; i < 8; ++i) array.append("more");
  EXPECT_EQ(array[0].c_str(), characters);
}

TEST(Array, HoldsMoveOnlyElementsAndEndsEachOnce) {
  struct CountsItsEnd {
    void operator()(int* ends) const { ++*ends; }
  };
  int ends = 0;
  {
    Array<std::unique_ptr<int, CountsItsEnd>> array;
    for (int i = 0; i < 5; ++i) array.append(std::unique_ptr<int, CountsItsEnd>(&ends));
    EXPECT_EQ(ends, 0);
  }
  EXPECT_EQ(ends, 5);
}

TEST(Array, AppendsItsOwnElement) {
  Array<String> array;
  array.append("first");
  array.append(array[0]);
  EXPECT_TRUE(array[0] == "first");
  EXPECT_TRUE(array[1] == "first");
}

TEST(Array, MovedFromIsEmpty) {
  Array<String> array;
  array.append("element");
  Array<String> moved = std::move(array);
  EXPECT_EQ(array.size, 0U);  // NOLINT(bugprone-use-after-move): empty by contract
  EXPECT_EQ(array.capacity, 0U);
  EXPECT_EQ(array.data, nullptr);
  Array<String> assigned;
  assigned = std::move(moved);
  ASSERT_EQ(assigned.size, 1U);
  EXPECT_TRUE(assigned[0] == "element");
}

TEST(Array, WalksItsElementsInOrder) {
  Array<int> array;
  for (int i = 0; i < 5; ++i) array.append(i * i);
  int expected = 0;
  for (const int element : array) {
    EXPECT_EQ(element, expected * expected);
    ++expected;
  }
  EXPECT_EQ(expected, 5);
}

}  // namespace
}  // namespace Orvel
