#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "support/allocation_count.h"
#include "support/given_table.h"
#include "support/test_host.h"
#include "support/type_samples.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/translation/scene_path.h"

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestHost;
using Vantrel::File::Project::SceneInfo;
using Vantrel::Simulation::Time;

class InputDispatch : public ::testing::Test {
 protected:
  Any held_ = makeAny(std::int32_t{5});

  void expectUnchanged() {
    const auto* value = anyCast<std::int32_t>(&held_);
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, 5);
  }

  TestHost host_;
};

TEST_F(InputDispatch, ArraysAreRefusedInSilence) {
  for (const char* type :
       {"array<int>", "array<array<string>>", "array<Math::float2x2>", "array<Simulation::Time>"}) {
    EXPECT_FALSE(host_.setInput(Orvel::typeNamed({type, std::strlen(type)}), held_, "a"));
    expectUnchanged();
  }
  EXPECT_THAT(host_.messages(), IsEmpty());
}

TEST_F(InputDispatch, RegisteredTypeGoesToItsSetter) {
  host_.giveText("count", "12");
  Any value;
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<std::int32_t>(), value, "count"));
  EXPECT_EQ(*anyCast<std::int32_t>(&value), 12);
  EXPECT_THAT(host_.messages(), ElementsAre("verbose Set input port 'count': (int) 12"));
}

TEST_F(InputDispatch, SetterThatLeavesTheAnyEmptyMakesTheResultFalse) {
  host_.giveText("count", "12abc");
  EXPECT_FALSE(host_.setInput(Orvel::typeOf<std::int32_t>(), held_, "count"));
  EXPECT_FALSE(held_.holdsValue());
}

TEST_F(InputDispatch, RowWithoutSetterIsAsNoRow) {
  HandlerTable table;
  table.byName["int"].setter = nullptr;
  testing::giveTable(host_.translation, table);
  host_.giveText("count", "12");
  EXPECT_FALSE(host_.setInput(Orvel::typeOf<std::int32_t>(), held_, "count"));
  expectUnchanged();
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Input port 'count' [int]",
                          "critical The TypeTranslation does not support setting a value of type "
                          "'int' for the input port named 'count'."));
}

TEST_F(InputDispatch, UnknownTypeIsRefusedInTwoLines) {
  EXPECT_FALSE(host_.setInput(Orvel::typeNamed({"Math::float2x2", 14}), held_, "m"));
  EXPECT_FALSE(host_.setInput(Orvel::typeNamed({"short", 5}), held_, "s", true));
  expectUnchanged();
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Input port 'm' [Math::float2x2]",
                          "critical The TypeTranslation does not support setting a value of type "
                          "'Math::float2x2' for the input port named 'm'.",
                          "progress Job port 's' [short]",
                          "critical The TypeTranslation does not support setting a value of type "
                          "'short' for the Job port named 's'."));
}

TEST_F(InputDispatch, TimeComesFromTheContext) {
  host_.context.frame = 1;
  host_.context.time = 0.5;
  host_.context.frameLength = 0.5;
  for (const bool isJobPort : {false, true}) {
    EXPECT_TRUE(host_.setInput(Orvel::typeOf<Time>(), held_, "time", isJobPort));
    const Time* time = anyCast<Time>(&held_);
    ASSERT_NE(time, nullptr);
    EXPECT_EQ(time->mode, 1);
    EXPECT_EQ(time->time, 0.5);
    EXPECT_EQ(time->frame, 1);
    EXPECT_EQ(time->frameLength, 0.5);
  }
  EXPECT_THAT(host_.messages(), ElementsAre("verbose Frame: 1 | Time: 0.5s (fps=2)",
                                            "verbose Frame: 1 | Time: 0.5s (fps=2)"));
}

TEST_F(InputDispatch, TextAndDefaultOfATimePortAreNotLookedAt) {
  host_.giveText("time", "12");
  EXPECT_TRUE(
      host_.setInput(Orvel::typeOf<Time>(), held_, "time", false, makeAny(Time{9, 9, 9, 9})));
  EXPECT_EQ(anyCast<Time>(&held_)->mode, 1);
}

TEST_F(InputDispatch, FrameNumbersReadAsNumberText) {
  host_.context.frame = 1.25;
  host_.context.time = 1234567;
  host_.context.frameLength = 1.0 / 24;
  Any value;
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<Time>(), value, "time"));
  EXPECT_THAT(host_.messages(), ElementsAre("verbose Frame: 1.25 | Time: 1.23457e+06s (fps=24)"));
}

TEST_F(InputDispatch, FrameLengthMustNotBeZeroOrNegative) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double length :
       {0.0, -0.0, -1.0, -0.041666, -infinity, -std::numeric_limits<double>::denorm_min()}) {
    host_.context.frameLength = length;
    EXPECT_FALSE(host_.setInput(Orvel::typeOf<Time>(), held_, "time"));
    expectUnchanged();
  }
  EXPECT_THAT(
      host_.messages(),
      ElementsAre("error Invalid frame length: 0", "error Invalid frame length: -0",
                  "error Invalid frame length: -1", "error Invalid frame length: -0.041666",
                  "error Invalid frame length: -inf", "error Invalid frame length: -4.94066e-324"));
}

TEST_F(InputDispatch, FrameLengthMayBeNotANumber) {
  host_.context.frameLength = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<Time>(), held_, "time"));
  EXPECT_THAT(host_.messages(), ElementsAre("verbose Frame: 0 | Time: 0s (fps=nan)"));
}

TEST_F(InputDispatch, SceneInfoComesFromTheContext) {
  host_.context.sceneFile = L"/shots/010/scene.vs";
  host_.context.secondaryPath = L"/cache/\u00e4";
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<SceneInfo>(), held_, "scene"));
  const SceneInfo* scene = anyCast<SceneInfo>(&held_);
  ASSERT_NE(scene, nullptr);
  EXPECT_STREQ(scene->fileName.c_str(), "scene.vs");
  EXPECT_STREQ(scene->directory.c_str(), "/shots/010/");
  EXPECT_STREQ(scene->secondaryPath.c_str(), narrowPath(L"/cache/\u00e4").c_str());
  EXPECT_TRUE(scene->hasSecondaryPath);
  EXPECT_THAT(host_.messages(), IsEmpty());
}

TEST_F(InputDispatch, EmptySecondaryPathIsNone) {
  host_.context.sceneFile = L"scene.vs";
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<SceneInfo>(), held_, "scene", true));
  const SceneInfo* scene = anyCast<SceneInfo>(&held_);
  EXPECT_STREQ(scene->directory.c_str(), "");
  EXPECT_STREQ(scene->secondaryPath.c_str(), "");
  EXPECT_FALSE(scene->hasSecondaryPath);
}

TEST_F(InputDispatch, SecondaryPathThatStartsWithNulIsGivenByItsSize) {
  host_.context.secondaryPath = HostPath(1, L'\0');
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<SceneInfo>(), held_, "scene"));
  EXPECT_STREQ(anyCast<SceneInfo>(&held_)->secondaryPath.c_str(), "");
  EXPECT_TRUE(anyCast<SceneInfo>(&held_)->hasSecondaryPath);
}

TEST_F(InputDispatch, PathThatCannotBeExpressedRaisesAndChangesNothing) {
  host_.context.sceneFile = HostPath(1, static_cast<wchar_t>(0xD800));
  EXPECT_THROW(host_.setInput(Orvel::typeOf<SceneInfo>(), held_, "scene"), std::system_error);
  expectUnchanged();
}

TEST_F(InputDispatch, OldValueEndsOnlyWhenItIsReplaced) {
  const auto array = testing::nestedArray<float, 1>(1.0F);
  Any value = makeAny(array);
  host_.context.frameLength = 0;
  EXPECT_FALSE(host_.setInput(Orvel::typeOf<Time>(), value, "time"));
  EXPECT_EQ(Orvel::useCount(array), 2U);
  host_.context.frameLength = 1;
  EXPECT_TRUE(host_.setInput(Orvel::typeOf<Time>(), value, "time"));
  EXPECT_EQ(Orvel::useCount(array), 1U);
}

TEST_F(InputDispatch, RecordsReplaceWhateverTheResultHeld) {
  host_.context.sceneFile = L"/a directory whose name takes memory of its own/scene.vs";
  for (const Orvel::Type& type : {Orvel::typeOf<Time>(), Orvel::typeOf<SceneInfo>()}) {
    const auto array = testing::nestedArray<float, 1>(1.0F);
    const auto set = [&](Any value) {
      EXPECT_TRUE(host_.setInput(type, value, "record"));
      EXPECT_NE(anyCast<Time>(&value) == nullptr, anyCast<SceneInfo>(&value) == nullptr);
    };
    const auto setEach = [&] {
      set(Any{});
      set(makeAny(array));
      set(makeAny(Math::double4{}));
      host_.logger.messages.clear();
    };
    setEach();
    EXPECT_EQ(Orvel::useCount(array), 1U);
#ifndef _WIN32
    // There each library has allocation functions of its own, and only the program's are counted.
    EXPECT_EQ(testing::blocksLeftBy(setEach), 0);
#endif
  }
}

TEST_F(InputDispatch, NullDataIsToldOnTheErrorStreamAlone) {
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(host_.translation.setInputValue(Orvel::typeOf<std::int32_t>(), held_, nullptr));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "[vtlcmd]  Critical: The TypeTranslation ValueData is null.\n");
  expectUnchanged();
  EXPECT_THAT(host_.messages(), IsEmpty());
}

}  // namespace
}  // namespace vtlcmd
