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

/// A host as it is after `prepare(host)`.
class PreparedHost : public Host {
 public:
  explicit PreparedHost(void (*prepare)(Host&)) { prepare(*this); }
};

/// Whether both hold the same T.
template <typename T>
bool holdSame(const Any& value, const Any& expected) {
  const T* held = anyCast<T>(&value);
  const T* wanted = anyCast<T>(&expected);
  return held != nullptr && wanted != nullptr && isWhole(*held, *wanted);
}

class FailingMemoryAtInputs : public ::testing::Test {
 protected:
  ~FailingMemoryAtInputs() override { object_->destroy(); }

  /// Sets a port of a type, of a host that is prepared, with every allocation failing. Nothing is
  /// half done: the value is the old one, none, or the one of an undisturbed call, the messages are
  /// the first of those of an undisturbed call, and the next call is one. `same` compares two
  /// values of the type.
  void failEach(const Orvel::Type& type, bool (*same)(const Any&, const Any&),
                void (*prepare)(Host&)) {
    const auto make = [&] { return PreparedHost(prepare); };
    const auto set = [&](Host& host) {
      return object_->setInputValue(type, host.value, &host.input);
    };
    PreparedHost undisturbed(prepare);
    const bool succeeds = set(undisturbed);
    const Collected expected(undisturbed.logger);
    const auto holdsNewValue = [&](const Any& value) {
      return undisturbed.value.holdsValue() ? same(value, undisturbed.value) : !value.holdsValue();
    };
    const auto check = [&](Host& host, bool threw) {
      const Collected collected(host.logger);
      if (!threw) {
        EXPECT_TRUE(holdsNewValue(host.value));
        EXPECT_EQ(collected, expected);
        return;
      }
      EXPECT_TRUE(host.holdsOldValue() || !host.value.holdsValue() || holdsNewValue(host.value));
      EXPECT_TRUE(collected.isBeginningOf(expected));
      host.logger.messages.resize(Host::oldMessages);
      EXPECT_EQ(set(host), succeeds);
      EXPECT_TRUE(holdsNewValue(host.value));
      EXPECT_EQ(Collected(host.logger), expected);
    };
    EXPECT_GT(failEveryAllocation(make, set, check), 0U);
  }

  template <typename T>
  void failEachOf(void (*prepare)(Host&)) {
    failEach(Orvel::typeOf<T>(), holdSame<T>, prepare);
  }

  LoadedPlugIn library_;
  TypeTranslation* object_ = library_.create();
};

template <typename T>
void giveText(Host& host) {
  const char* text = "no object has a text";
  if constexpr (!std::is_same_v<T, ObjectPtr>) text = rowOf<T>().samples[0].text;
  host.inputValues.insert(host.name, {{}, text});
}

void giveBadText(Host& host) {
  host.jobValues.insert(host.name, {{}, "1,no number at all,2,3"});
  host.input.isJobPort = true;
}

template <typename T>
void giveDefault(Host& host) {
  host.input.defaultValue = makeAny(sampleValue<T>(1));
}

void giveNothing(Host&) {}

template <typename T>
class FailingMemoryAtInputsOf : public FailingMemoryAtInputs {};
TYPE_TEST_SUITE(FailingMemoryAtInputsOf, RegisteredTestTypes);

TYPE_TEST(FailingMemoryAtInputsOf, Text) {
  this->template failEachOf<TypeParam>(giveText<TypeParam>);
}
TYPE_TEST(FailingMemoryAtInputsOf, RefusedText) {
  this->template failEachOf<TypeParam>(giveBadText);
}
TYPE_TEST(FailingMemoryAtInputsOf, DefaultOfTheRecord) {
  this->template failEachOf<TypeParam>(giveDefault<TypeParam>);
}
TYPE_TEST(FailingMemoryAtInputsOf, Zero) { this->template failEachOf<TypeParam>(giveNothing); }

/// Copies a value that the plug-in made.
void failEachCopy(const Any& value) {
  failEveryAllocation([] { return Any(); }, [&](Any& copy) { copy = value; },
                      [&](const Any& copy, bool threw) { EXPECT_EQ(copy.holdsValue(), !threw); });
}

TYPE_TEST(FailingMemoryAtInputsOf, CopyOfTheValue) {
  Host host;
  ASSERT_TRUE(this->object_->setInputValue(Orvel::typeOf<TypeParam>(), host.value, &host.input));
  failEachCopy(host.value);
  EXPECT_NE(anyCast<TypeParam>(&host.value), nullptr);
}

TEST_F(FailingMemoryAtInputs, Time) { failEachOf<Vantrel::Simulation::Time>(giveNothing); }

TEST_F(FailingMemoryAtInputs, SceneInfo) {
  failEachOf<Vantrel::File::Project::SceneInfo>(giveNothing);
}

/// What is refused leaves the value alone, also when the refusal can't be told.
void refuseEach(const TypeTranslation& object, const Orvel::Type& type, void (*prepare)(Host&)) {
  const auto set = [&](Host& host) { object.setInputValue(type, host.value, &host.input); };
  PreparedHost undisturbed(prepare);
  set(undisturbed);
  const Collected expected(undisturbed.logger);
  failEveryAllocation(
      [&] { return PreparedHost(prepare); }, set,
      [&](Host& host, bool threw) {
        const Collected collected(host.logger);
        EXPECT_TRUE(host.holdsOldValue());
        EXPECT_TRUE(threw ? collected.isBeginningOf(expected) : collected == expected);
        host.logger.addMessage(vtlcmdSource, levelError, "the logger goes on");
        EXPECT_EQ(host.logger.messages.size(), collected.messages.size() + 1);
      });
}

TEST_F(FailingMemoryAtInputs, RefusedTypes) {
  refuseEach(*object_, Orvel::typeOf<Math::float2x2>(), giveNothing);
  refuseEach(*object_, Orvel::makeArrayType(Orvel::typeOf<std::int32_t>()), giveNothing);
  refuseEach(*object_, Orvel::typeOf<Vantrel::Simulation::Time>(),
             [](Host& host) { host.context.frameLength = -1; });
}

TEST_F(FailingMemoryAtInputs, NullRecord) {
  const Orvel::Type type = Orvel::typeOf<std::int32_t>();
  ::testing::internal::CaptureStderr();
  failEveryAllocation([] { return Host(); },
                      [&](Host& host) { object_->setInputValue(type, host.value, nullptr); },
                      [](const Host& host, bool) { EXPECT_TRUE(host.holdsOldValue()); });
  ::testing::internal::GetCapturedStderr();
}

}  // namespace
}  // namespace vtlcmd::testing
