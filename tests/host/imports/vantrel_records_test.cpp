#include "vtlcmd/host/imports/vantrel_records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/imports/own_library.h"
#include "vtlcmd/host/any.h"

namespace Vantrel::File::Project {
namespace {

using Orvel::testing::startAnew;
using Orvel::testing::takeCalls;
using ::testing::ElementsAre;

constexpr auto sceneTag = vtlcmd::makeTag("USceneInfo@Project@File@Vantrel@@", 0, 0);

TEST(SceneInfo, EndsItsTextsFromTheLastToTheFirst) {
  vtlcmd::Any any = vtlcmd::makeTaggedAny<sceneTag>(SceneInfo{"file", "directory", "second", true});
  startAnew();
  any = vtlcmd::Any();
  EXPECT_THAT(takeCalls(), ElementsAre("end second", "end directory", "end file"));
}

TEST(SceneInfo, CopiesItsTextsFromTheFirstToTheLast) {
  const vtlcmd::Any any =
      vtlcmd::makeTaggedAny<sceneTag>(SceneInfo{"file", "directory", "second", true});
  startAnew();
  const vtlcmd::Any copy = any;
  EXPECT_THAT(takeCalls(), ElementsAre("copy file", "copy directory", "copy second"));
}

}  // namespace
}  // namespace Vantrel::File::Project
