#include <gtest/gtest.h>

#include "border/failing_memory/every_allocation.h"
#include "border/host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::testing {
namespace {

using VantrelGraph::Executor::TypeTranslation;

template <typename T>
bool isWhole(const T& value, const T& expected) {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return value.pointer != nullptr;
  } else if constexpr (std::is_same_v<T, Vantrel::Simulation::Time>) {
    return value.mode == expected.mode && value.time == expected.time &&
           value.frame == expected.frame && value.frameLength == expected.frameLength;
  } else if constexpr (std::is_same_v<T, Vantrel::File::Project::SceneInfo>) {
    return value.fileName == expected.fileName && value.directory == expected.directory &&
           value.secondaryPath == expected.secondaryPath &&
           value.hasSecondaryPath == expected.hasSecondaryPath;
  } else {
    return value == expected;
  }
}

class FailingMemoryAtInputs : public ::testing::Test {
 protected:
  ~FailingMemoryAtInputs() override { object_->destroy(); }

  /// Sets a port of T, which `Prepared` makes of a host, with every allocation failing. Nothing is
  /// half done: the value is the old one, none, or the one of an undisturbed call, the messages are
  /// the first of those of an undisturbed call, and the next call is one.
  template <typename T, typename Prepared>
  void failEach() {
    const Orvel::Type type = Orvel::typeOf<T>();
    const auto set = [&](Host& host) {
      return object_->setInputValue(type, host.value, &host.input);
    };
    Prepared undisturbed;
    const bool succeeds = set(undisturbed);
    const Collected expected(undisturbed.logger);
    const auto holdsNewValue = [&](const Any& value) {
      if (!undisturbed.value.holdsValue()) return !value.holdsValue();
      const T* held = anyCast<T>(&value);
      const T* wanted = anyCast<T>(&undisturbed.value);
      return held != nullptr && wanted != nullptr && isWhole(*held, *wanted);
    };
    const std::size_t failures = failEveryAllocation<Prepared>(
        [&](Prepared& host) { set(host); },
        [&](Prepared& host, bool threw) {
          const Collected collected(host.logger);
          if (!threw) {
            EXPECT_TRUE(holdsNewValue(host.value));
            EXPECT_EQ(collected, expected);
            return;
          }
          EXPECT_TRUE(host.holdsOldValue() || !host.value.holdsValue() ||
                      holdsNewValue(host.value));
          EXPECT_TRUE(collected.isBeginningOf(expected));
          host.logger.messages.resize(Host::oldMessages);
          EXPECT_EQ(set(host), succeeds);
          EXPECT_TRUE(holdsNewValue(host.value));
          EXPECT_EQ(Collected(host.logger), expected);
        });
    EXPECT_GT(failures, 0U);
  }

  LoadedPlugIn library_;
  TypeTranslation* object_ = library_.create();
};

template <typename T>
struct WithText : Host {
  WithText() { inputValues.insert(name, {{}, rowOf<T>().samples[0].text}); }
};
template <>
struct WithText<ObjectPtr> : Host {
  WithText() { inputValues.insert(name, {{}, "no object has a text"}); }
};

struct WithBadText : Host {
  WithBadText() {
    jobValues.insert(name, {{}, "1,no number at all,2,3"});
    input.isJobPort = true;
  }
};

struct WithNothing : Host {};

template <typename T>
struct WithDefault : Host {
  WithDefault() { input.defaultValue = makeAny(sampleValue<T>(1)); }
};

template <typename T>
class FailingMemoryAtInputsOf : public FailingMemoryAtInputs {};
TYPE_TEST_SUITE(FailingMemoryAtInputsOf, RegisteredTestTypes);

TYPE_TEST(FailingMemoryAtInputsOf, Text) {
  this->template failEach<TypeParam, WithText<TypeParam>>();
}
TYPE_TEST(FailingMemoryAtInputsOf, RefusedText) {
  this->template failEach<TypeParam, WithBadText>();
}
TYPE_TEST(FailingMemoryAtInputsOf, DefaultOfTheRecord) {
  this->template failEach<TypeParam, WithDefault<TypeParam>>();
}
TYPE_TEST(FailingMemoryAtInputsOf, Zero) { this->template failEach<TypeParam, WithNothing>(); }

TYPE_TEST(FailingMemoryAtInputsOf, CopyOfTheValue) {
  WithNothing host;
  ASSERT_TRUE(this->object_->setInputValue(Orvel::typeOf<TypeParam>(), host.value, &host.input));
  failEveryAllocation<Any>([&](Any& copy) { copy = host.value; },
                           [&](const Any& copy, bool threw) {
                             EXPECT_EQ(copy.holdsValue(), !threw);
                             EXPECT_NE(anyCast<TypeParam>(&host.value), nullptr);
                           });
}

TEST_F(FailingMemoryAtInputs, Time) { failEach<Vantrel::Simulation::Time, WithNothing>(); }

TEST_F(FailingMemoryAtInputs, SceneInfo) {
  failEach<Vantrel::File::Project::SceneInfo, WithNothing>();
}

/// What is refused leaves the value alone, also when the refusal can't be told.
template <typename Prepared>
void refuseEach(const TypeTranslation& object, const Orvel::Type& type) {
  const auto set = [&](Prepared& host) { object.setInputValue(type, host.value, &host.input); };
  Prepared undisturbed;
  set(undisturbed);
  const Collected expected(undisturbed.logger);
  failEveryAllocation<Prepared>(set, [&](Prepared& host, bool threw) {
    const Collected collected(host.logger);
    EXPECT_TRUE(host.holdsOldValue());
    EXPECT_TRUE(threw ? collected.isBeginningOf(expected) : collected == expected);
    host.logger.addMessage(vtlcmdSource, levelError, "the logger goes on");
    EXPECT_EQ(host.logger.messages.size(), collected.messages.size() + 1);
  });
}

struct WithBadFrameLength : Host {
  WithBadFrameLength() { context.frameLength = -1; }
};

TEST_F(FailingMemoryAtInputs, RefusedTypes) {
  refuseEach<Host>(*object_, Orvel::typeOf<Math::float2x2>());
  refuseEach<Host>(*object_, Orvel::makeArrayType(Orvel::typeOf<std::int32_t>()));
  refuseEach<WithBadFrameLength>(*object_, Orvel::typeOf<Vantrel::Simulation::Time>());
}

TEST_F(FailingMemoryAtInputs, NullRecord) {
  const Orvel::Type type = Orvel::typeOf<std::int32_t>();
  ::testing::internal::CaptureStderr();
  failEveryAllocation<Host>([&](Host& host) { object_->setInputValue(type, host.value, nullptr); },
                            [](const Host& host, bool) { EXPECT_TRUE(host.holdsOldValue()); });
  ::testing::internal::GetCapturedStderr();
}

}  // namespace
}  // namespace vtlcmd::testing
