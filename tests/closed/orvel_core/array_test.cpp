#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <utility>

#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_string.h"

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

/// Looks at the array that it is made in, and throws instead of being made when told to.
class Watching {
 public:
  struct State {
    Array<Watching>* array = nullptr;
    std::uint64_t sizeWhenMade = 0;
    const void* placeWhenMade = nullptr;
    int copies = 0;
    int ends = 0;
    bool refuses = false;
  };

  explicit Watching(State& state) : state_(&state) {}
  Watching(const Watching& other) : state_(other.state_) {
    if (state_->refuses) throw std::runtime_error("no copy");
    state_->sizeWhenMade = state_->array->size;
    state_->placeWhenMade = this;
    ++state_->copies;
  }
  Watching(Watching&& other) noexcept : state_(other.state_) {}
  Watching& operator=(const Watching&) = delete;
  ~Watching() { ++state_->ends; }

 private:
  State* state_;
};

TEST(Array, CountsTheElementThenMakesItInPlaceByOneCopy) {
  Watching::State state;
  const Watching source(state);
  Array<Watching> array;
  state.array = &array;
  for (std::uint64_t count = 1; count <= 5; ++count) {
    const int before = state.copies;
    array.append(source);
    EXPECT_EQ(state.copies, before + 1);
    EXPECT_EQ(state.sizeWhenMade, count);
    EXPECT_EQ(state.placeWhenMade, array.data + count - 1);
  }
  EXPECT_EQ(state.ends, 0 + 1 + 2 + 4) << "the moved elements of three smaller blocks";
}

TEST(Array, KeepsItsElementsWhenMakingOneThrows) {
  Watching::State state;
  const Watching source(state);
  {
    Array<Watching> array;
    state.array = &array;
    array.append(source);
    state.refuses = true;
    EXPECT_THROW(array.append(source), std::runtime_error);
    EXPECT_EQ(array.size, 1U);
    EXPECT_EQ(array.capacity, 2U) << "it grew first";
    EXPECT_EQ(state.ends, 1) << "the element in the smaller block";
  }
  EXPECT_EQ(state.ends, 2);
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
