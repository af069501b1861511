#include <bit>
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "support/type_samples.h"
#include "vtlcmd/host/any.h"
#include "vtlcmd/host/value_types.h"

/// The managers' side of an Any: what a module of another maker calls and gets called with.

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;

constexpr std::uintptr_t garbage = 0xABABABABABABABAB;

/// The arguments as a module of another maker declares them.
struct ForeignArgs {
  std::int32_t op;
  void* self;
  void* other;
  void* result;
};

std::vector<std::string> calls;

/// A manager of another maker; its value is the letter in the first word.
void foreignManager(AnyOpArgs* args) {
  static constexpr auto tag = makeTag("UForeign@@", 0, 0);
  static const char* const names[] = {"destroy", "copy", "move", "cast", "address", "type"};
  const auto& foreign = *reinterpret_cast<const ForeignArgs*>(args);
  const auto letter = static_cast<char>(args->self->storage[0]);
  calls.push_back(std::string(names[foreign.op]) + ' ' + letter);
  auto* destination = static_cast<Any*>(foreign.other);
  switch (foreign.op) {
    case 0:
      args->self->manager = nullptr;
      break;
    case 1:
    case 2:
      std::memset(static_cast<void*>(destination), 0, 32);
      destination->storage[0] = args->self->storage[0];
      destination->manager = args->self->manager;
      if (foreign.op == 2) args->self->manager = nullptr;
      break;
    case 3:
      args->result = sameType(*static_cast<const Orvel::Internal::TypeInfo*>(foreign.other), tag)
                         ? args->self
                         : nullptr;
      break;
    case 4:
      args->other = args->self;
      break;
    case 5:
      args->other = const_cast<Orvel::Internal::TypeInfo*>(&tag);
      break;
  }
}

Any foreignAny(char letter) {
  Any any;
  any.storage[0] = static_cast<unsigned char>(letter);
  any.manager = &foreignManager;
  return any;
}

/// What the managers are called for while `operation` runs.
template <typename Operation>
std::vector<std::string> callsOf(Operation operation) {
  calls.clear();
  operation();
  return std::exchange(calls, {});
}

char letterIn(const Any& any) { return any.holdsValue() ? static_cast<char>(any.storage[0]) : '-'; }

TEST(ForeignManager, GetsTheNumbersOfTheOperations) {
  const Any any = foreignAny('a');
  EXPECT_THAT(callsOf([&] {
                Any copy = any;
                const Any moved = std::move(copy);
              }),
              ElementsAre("copy a", "move a", "destroy a"));
  EXPECT_THAT(callsOf([&] { EXPECT_EQ(any_operations::address(any), &any); }),
              ElementsAre("address a"));
  const Orvel::Internal::TypeInfo* tag = nullptr;
  EXPECT_THAT(callsOf([&] { tag = &any.type(); }), ElementsAre("type a"));
  EXPECT_THAT(callsOf([&] { EXPECT_EQ(any_operations::cast(any, *tag), &any); }),
              ElementsAre("cast a"));
}

TEST(ForeignManager, CopyAssignmentEndsTheOldValueFirst) {
  Any a = foreignAny('a');
  const Any b = foreignAny('b');
  EXPECT_THAT(callsOf([&] { a = b; }), ElementsAre("destroy a", "copy b"));
  EXPECT_EQ(letterIn(a), 'b');
  EXPECT_EQ(letterIn(b), 'b');
  EXPECT_THAT(callsOf([&] { a = *&a; }), ElementsAre("destroy b"));
  EXPECT_EQ(letterIn(a), '-');
}

TEST(ForeignManager, MoveAssignmentEndsTheOldValueFirst) {
  Any a = foreignAny('a');
  Any b = foreignAny('b');
  EXPECT_THAT(callsOf([&] { a = std::move(b); }), ElementsAre("destroy a", "move b"));
  EXPECT_EQ(letterIn(a), 'b');
  EXPECT_EQ(letterIn(b), '-');  // NOLINT(bugprone-use-after-move): empty by contract
  Any& self = a;
  EXPECT_THAT(callsOf([&] { a = std::move(self); }), ElementsAre("destroy b"));
  EXPECT_EQ(letterIn(a), '-');
}

TEST(ForeignManager, SwapMovesTheSecondTheFirstAndTheSecond) {
  Any a = foreignAny('a');
  Any b = foreignAny('b');
  EXPECT_THAT(callsOf([&] { swap(a, b); }), ElementsAre("move b", "move a", "move b"));
  EXPECT_EQ(letterIn(a), 'b');
  EXPECT_EQ(letterIn(b), 'a');
}

TEST(ForeignManager, SwapWithAnEmptyOneMovesOnce) {
  Any a = foreignAny('a');
  Any b;
  EXPECT_THAT(callsOf([&] { swap(a, b); }), ElementsAre("move a"));
  EXPECT_EQ(letterIn(b), 'a');
  EXPECT_THAT(callsOf([&] { swap(a, b); }), ElementsAre("move a"));
  EXPECT_EQ(letterIn(a), 'a');
  EXPECT_THAT(callsOf([&] { swap(a, a); }), ElementsAre());
}

/// Calls a manager of ours as a module of another maker does.
ForeignArgs callManager(std::int32_t op, Any& self, void* other, void* result = nullptr) {
  ForeignArgs args{op, &self, other, result};
  self.manager(reinterpret_cast<AnyOpArgs*>(&args));
  return args;
}

TEST(OwnManager, TakesTheNumbersOfTheOperations) {
  Any any = makeAny(std::int32_t{5});
  Any copy;
  callManager(1, any, &copy);
  EXPECT_EQ(*anyCast<std::int32_t>(&copy), 5);
  Any moved;
  callManager(2, copy, &moved);
  EXPECT_FALSE(copy.holdsValue());
  ASSERT_TRUE(moved.holdsValue());
  auto tag = makeTag("H", 0, 0);
  EXPECT_EQ(callManager(3, moved, &tag).result, &moved);
  EXPECT_EQ(callManager(4, moved, nullptr).other, &moved);
  EXPECT_EQ(callManager(5, moved, nullptr).other, (&typeTag<std::int32_t, 0>));
  callManager(0, moved, nullptr);
  EXPECT_FALSE(moved.holdsValue());
}

TEST(OwnManager, WritesNullOverAResultWhenTheTagIsAnother) {
  Any any = makeAny(std::int32_t{5});
  for (auto tag : {makeTag("I", 0, 0), makeTag("H", 0, 1), makeTag("H", 2, 0)}) {
    EXPECT_EQ(callManager(3, any, &tag, &any).result, nullptr);
  }
}

/// The value after an operation into words that held something else.
template <typename T>
std::vector<std::uintptr_t> wordsAfter(std::int32_t op, T value) {
  Any any = makeAny(std::move(value));
  Any destination;
  for (std::uintptr_t& word : destination.storage) word = garbage;
  destination.manager = std::bit_cast<AnyManager>(garbage);
  const AnyManager manager = any.manager;
  callManager(op, any, &destination);
  EXPECT_EQ(destination.manager, manager);
  return {std::begin(destination.storage), std::end(destination.storage)};
}

TEST(OwnManager, ClearsTheDestinationOfACopyAndOfAMove) {
  for (const std::int32_t op : {1, 2}) {
    EXPECT_THAT(wordsAfter(op, true), ElementsAre(1U, 0U, 0U));
    EXPECT_THAT(wordsAfter(op, std::int32_t{-1}), ElementsAre(0xFFFFFFFFU, 0U, 0U));
    EXPECT_THAT(wordsAfter(op, Math::float3{{0, 0, 1.0F}}), ElementsAre(0U, 0x3F800000U, 0U));
    EXPECT_THAT(wordsAfter(op, Math::double4{}), ElementsAre(::testing::Ne(garbage), 0U, 0U));
    EXPECT_THAT(wordsAfter(op, ObjectPtr()), ElementsAre(0U, 0U, 0U));
  }
}

/// Counts what happens to values in place.
struct Counted {
  static inline int moves;
  static inline int copies;
  static inline int ends;
  std::uintptr_t word = 7;

  Counted() = default;
  Counted(const Counted& other) : word(other.word) { ++copies; }
  Counted(Counted&& other) noexcept : word(std::exchange(other.word, 0)) { ++moves; }
  Counted& operator=(const Counted&) = delete;
  ~Counted() { ++ends; }
};

TEST(OwnManager, DoesNotEndTheValueThatItMoved) {
  static constexpr auto tag = makeTag("UCounted@@", 0, 0);
  Any any = makeTaggedAny<tag>(Counted());
  Counted::moves = Counted::copies = Counted::ends = 0;
  {
    const Any moved = std::move(any);
    EXPECT_EQ(Counted::moves, 1);
    EXPECT_EQ(Counted::ends, 0);
    EXPECT_EQ(static_cast<const Counted*>(any_operations::address(moved))->word, 7U);
  }
  EXPECT_EQ(Counted::ends, 1);
  EXPECT_EQ(Counted::copies, 0);
}

}  // namespace
}  // namespace vtlcmd
