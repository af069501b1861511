#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "border/failing_memory/every_allocation.h"
#include "border/host.h"

namespace vtlcmd::testing {
namespace {

using VantrelGraph::Executor::TypeTranslation;

/// How a call of the entry came out.
enum Outcome : int { gaveNull, gaveObject, gaveObjectUndisturbed, threw, ended, strange };

/// Calls the entry in a process of its own, for it may end that.
Outcome createWithFailure(const LoadedPlugIn& library, std::size_t number, Failure failure) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    close(STDERR_FILENO);
    const FailingMemory memory(number, failure);
    bool created = false;
    try {
      created = library.create() != nullptr;
    } catch (...) {
      _exit(threw);
    }
    _exit(!created ? gaveNull : FailingMemory::hasFailed() ? gaveObject : gaveObjectUndisturbed);
  }
  int status = 0;
  if (waitpid(child, &status, 0) != child) return strange;
  if (WIFSIGNALED(status)) return WTERMSIG(status) == SIGABRT ? ended : strange;
  return static_cast<Outcome>(WEXITSTATUS(status));
}

/// Null from the allocator of the object comes back as null; any other failure ends the process
/// rather than crossing into the host. Gives how many allocations the call makes.
std::size_t failEachOfTheEntry(const LoadedPlugIn& library, Failure failure) {
  EXPECT_EQ(createWithFailure(library, 0, failure), gaveNull);
  for (std::size_t number = 1; number < mostAllocations; ++number) {
    const Outcome outcome = createWithFailure(library, number, failure);
    if (outcome == gaveObjectUndisturbed) return number;
    EXPECT_EQ(outcome, ended) << "allocation " << number;
  }
  return mostAllocations;
}

/// Of the table that the first call builds: a name and four tags of each type.
constexpr std::size_t tableNodes = 5 * std::tuple_size_v<decltype(registeredTypes)>;

TEST(FailingMemoryAtTheEntry, EndsTheProcessOrGivesNull) {
  const LoadedPlugIn library;
  const std::size_t withTable = failEachOfTheEntry(library, Failure::once);
  EXPECT_EQ(failEachOfTheEntry(library, Failure::lasting), withTable);

  TypeTranslation* first = library.create();
  ASSERT_NE(first, nullptr);
  const std::size_t withoutTable = failEachOfTheEntry(library, Failure::once);
  EXPECT_EQ(failEachOfTheEntry(library, Failure::lasting), withoutTable);
  EXPECT_GE(withTable, withoutTable + tableNodes);
  first->destroy();
}

TEST(FailingMemoryAtTheEntry, NoObjectLeavesNothingBehind) {
  const LoadedPlugIn library;
  const std::size_t before = liveBlocks();
  {
    const FailingMemory memory(0, Failure::once);
    EXPECT_EQ(library.create(), nullptr);
  }
  EXPECT_EQ(liveBlocks(), before);
  library.create()->destroy();
}

TEST(FailingMemoryAtTheEntry, DestroyNeedsNoMemoryAndLeavesNoObject) {
  const LoadedPlugIn library;
  library.create()->destroy();
  const std::size_t before = liveBlocks();
  TypeTranslation* object = library.create();
  {
    const FailingMemory memory(0, Failure::lasting);
    object->destroy();
    EXPECT_FALSE(FailingMemory::hasFailed());
  }
  EXPECT_EQ(liveBlocks(), before);
}

TEST(FailingMemoryAtTheEntry, UnloadingGivesTheTableBack) {
  { const LoadedPlugIn warmUp; }
  const std::size_t before = liveBlocks();
  {
    const LoadedPlugIn library;
    library.create()->destroy();
    EXPECT_GT(liveBlocks(), before + tableNodes);
  }
  EXPECT_EQ(liveBlocks(), before);
}

TEST(FailingMemoryAtTheEntry, SupportedNamesAreWholeSoFar) {
  const LoadedPlugIn library;
  TypeTranslation* object = library.create();
  Orvel::Array<Orvel::String> all;
  object->getSupportedTypeNames(all);
  ASSERT_EQ(all.size, supportedCount);
  const std::size_t failures = failEveryAllocation(
      [] { return Orvel::Array<Orvel::String>(); },
      [&](Orvel::Array<Orvel::String>& names) { object->getSupportedTypeNames(names); },
      [&](Orvel::Array<Orvel::String>& names, bool threw) {
        ASSERT_LE(names.size, all.size);
        EXPECT_EQ(names.size < all.size, threw);
        for (std::uint64_t i = 0; i < names.size; ++i) EXPECT_EQ(names[i], all[i]);
        object->getSupportedTypeNames(names);
      });
  EXPECT_GT(failures, 0U);
  object->destroy();
}

}  // namespace
}  // namespace vtlcmd::testing
