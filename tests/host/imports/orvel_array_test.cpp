#include "vtlcmd/host/imports/orvel_array.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/imports/own_library.h"
#include "vtlcmd/host/imports/orvel_string.h"

namespace Orvel {
namespace {

using ::testing::ElementsAre;
using testing::startAnew;
using testing::takeCalls;

TEST(ArrayOfStrings, GrowsMovingFrontToBackAndGivesTheOldBlockBack) {
  startAnew();
  {
    Array<String> array;
    array.append("a");
    EXPECT_THAT(takeCalls(), ElementsAre("allocate 1 of 16 at 8", "make a"));
    array.append("b");
    EXPECT_THAT(takeCalls(), ElementsAre("allocate 2 of 16 at 8", "move a", "end moved",
                                         "deallocate block 1 of 1", "make b"));
    array.append("c");
    EXPECT_THAT(takeCalls(), ElementsAre("allocate 4 of 16 at 8", "move a", "move b", "end moved",
                                         "end moved", "deallocate block 2 of 2", "make c"));
    array.append("d");
    EXPECT_THAT(takeCalls(), ElementsAre("make d"));
  }
  EXPECT_THAT(takeCalls(),
              ElementsAre("end a", "end b", "end c", "end d", "deallocate block 3 of 4"));
}

TEST(ArrayOfStrings, CopiesAnElementOnce) {
  const String element("element");
  Array<String> array;
  startAnew();
  array.append(element);
  EXPECT_THAT(takeCalls(), ElementsAre("allocate 1 of 16 at 8", "copy element"));
}

TEST(ArrayOfStrings, WithoutElementsOwnsNothing) {
  startAnew();
  { const Array<String> array; }
  EXPECT_THAT(takeCalls(), ElementsAre());
}

TEST(ArrayOfDoubles, TellsTheLibraryTheirSize) {
  startAnew();
  Array<double> array;
  array.append(1.5);
  EXPECT_THAT(takeCalls(), ElementsAre("allocate 1 of 8 at 8"));
}

}  // namespace
}  // namespace Orvel
