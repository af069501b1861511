#include "orvel_core/owned_block.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace Orvel {
namespace {

using ::testing::ElementsAre;

/// Writes down when its end begins and when it is over.
struct Noted {
  Noted(std::string objectName, std::vector<std::string>& allNotes, Ptr<Noted> object)
      : name(std::move(objectName)), notes(allNotes), other(std::move(object)) {}
  Noted(const Noted&) = delete;
  Noted& operator=(const Noted&) = delete;
  ~Noted() {
    notes.push_back(name + " ends");
    other = {};
    notes.push_back(name + " has ended");
  }

  std::string name;
  std::vector<std::string>& notes;
  Ptr<Noted> other;
};

TEST(OwnedBlock, EndsAfterTheOneThatHeldItsLastUse) {
  std::vector<std::string> notes;
  Ptr<Noted> outer = Internal::makeOwned<Noted>(
      "outer", notes, Internal::makeOwned<Noted>("inner", notes, Ptr<Noted>()));
  outer = {};
  EXPECT_THAT(notes, ElementsAre("outer ends", "outer has ended", "inner ends", "inner has ended"));
}

TEST(OwnedBlock, OneThatIsHeldElsewhereStays) {
  std::vector<std::string> notes;
  const Ptr<Noted> inner = Internal::makeOwned<Noted>("inner", notes, Ptr<Noted>());
  Ptr<Noted> outer = Internal::makeOwned<Noted>("outer", notes, inner);
  outer = {};
  EXPECT_THAT(notes, ElementsAre("outer ends", "outer has ended"));
  EXPECT_EQ(inner->name, "inner");
}

TEST(OwnedBlock, AnotherChainEndsAfterTheFirst) {
  std::vector<std::string> notes;
  for (const char* name : {"first", "second"}) {
    const Ptr<Noted> object = Internal::makeOwned<Noted>(name, notes, Ptr<Noted>());
  }
  EXPECT_THAT(notes,
              ElementsAre("first ends", "first has ended", "second ends", "second has ended"));
}

}  // namespace
}  // namespace Orvel
