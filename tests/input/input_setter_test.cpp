#include "vtlcmd/input/input_setter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <vector>

#include "support/allocation_count.h"
#include "support/test_host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/stand_in/make_string.h"

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;
using testing::rowOf;
using testing::sampleValue;
using testing::TestHost;

enum class Default { none, own, foreign };

/// What a setter can meet: the kind of port, a result that held something, a default of the host's.
struct State {
  bool isJobPort;
  bool filled;
  Default defaultKind;
};

std::vector<State> allStates() {
  std::vector<State> states;
  for (const bool isJobPort : {false, true}) {
    for (const bool filled : {false, true}) {
      for (const Default kind : {Default::none, Default::own, Default::foreign}) {
        states.push_back({isJobPort, filled, kind});
      }
    }
  }
  return states;
}

/// One call on the port "p" in one state.
template <typename T>
struct Call {
  Call(const State& state, const char* text) : isJobPort(state.isJobPort) {
    if (text != nullptr) (isJobPort ? host.jobValues : host.inputValues).insert("p", {"", text});
    // Never looked at: the port has no text in the other map.
    (isJobPort ? host.inputValues : host.jobValues).insert("p", {"", "other map"});
    const auto old = testing::nestedArray<float, 1>(1);
    if (state.filled) value = makeAny(old);
    Any defaultValue;
    if (state.defaultKind == Default::own) defaultValue = makeAny(sampleValue<T>(1));
    if (state.defaultKind == Default::foreign) {
      defaultValue = makeAny(testing::nestedArray<T, 1>(sampleValue<T>(1)));
    }
    result = host.setInput(Orvel::typeOf<T>(), value, "p", isJobPort, defaultValue);
    EXPECT_EQ(result, value.holdsValue());
    EXPECT_EQ(Orvel::useCount(old), 1U) << "what the result held is gone in every case";
  }

  std::string valueLine(const std::string& text) const {
    return "verbose Set " + word() + " port 'p': (" + name + ") " + text;
  }
  std::string noValueLine() const {
    return "verbose No value was provided to vtlcmd for " + word() + " port 'p' (" + name +
           "). A default value will be used.";
  }
  std::string error(const std::string& text) const {
    return std::string("error ") + (isJobPort ? "Job" : "Input") + " port 'p' (" + name +
           "): " + text;
  }
  std::string word() const { return isJobPort ? "Job" : "input"; }

  bool isJobPort;
  TestHost host;
  Any value;
  bool result = false;
  std::string name = valueType<T>().name;
};

template <typename T>
class InputSetter : public ::testing::Test {};
TYPE_TEST_SUITE(InputSetter, testing::RegisteredTestTypes);

TYPE_TEST(InputSetter, TextBecomesTheValue) {
  if constexpr (!std::is_same_v<TypeParam, ObjectPtr>) {
    for (const State& state : allStates()) {
      const Call<TypeParam> call(state, rowOf<TypeParam>().samples[0].text);
      EXPECT_TRUE(call.result);
      EXPECT_EQ(*anyCast<TypeParam>(&call.value), sampleValue<TypeParam>(0));
      EXPECT_THAT(call.host.messages(),
                  ElementsAre(call.valueLine(rowOf<TypeParam>().samples[0].report)));
    }
  }
}

TYPE_TEST(InputSetter, BadOrEmptyTextLeavesNothingAndUsesNoDefault) {
  for (const State& state : allStates()) {
    for (const char* text : {"x", ""}) {
      const Call<TypeParam> call(state, text);
      if constexpr (std::is_same_v<TypeParam, Orvel::String>) {
        EXPECT_TRUE(call.result);
        EXPECT_THAT(call.host.messages(),
                    ElementsAre(call.valueLine("\"" + std::string(text) + "\"")));
      } else {
        EXPECT_FALSE(call.result);
        std::string message = "Unable to convert '" + std::string(text) + "' to a" +
                              (call.name == "int" ? "n " : " ") + call.name + " value.";
        if constexpr (std::is_same_v<TypeParam, ObjectPtr>) {
          message = "UNSUPPORTED: setFromString() for Object";
        } else if constexpr (VectorType<TypeParam>) {
          message = "Cannot extract " + call.name + " value from '" + text +
                    "': invalid number of vector components";
        }
        EXPECT_THAT(call.host.messages(), ElementsAre(call.error(message)));
      }
    }
  }
}

TYPE_TEST(InputSetter, OneBadPieceIsEnough) {
  const std::size_t count = valueType<TypeParam>().components;
  for (const char* bad : {"1x", "x", "", "1e999"}) {
    for (std::size_t position = 0; count > 1 && position < count; ++position) {
      std::string text;
      for (std::size_t i = 0; i < count; ++i) text.append(i == position ? bad : "1").append(",");
      text.pop_back();
      const Call<TypeParam> call({false, true, Default::own}, text.c_str());
      EXPECT_FALSE(call.result) << text;
      EXPECT_THAT(call.host.messages(),
                  ElementsAre(call.error(std::string("Unable to convert '") + bad +
                                         valueType<TypeParam>().parseErrorEnd)));
    }
  }
}

TYPE_TEST(InputSetter, WithoutTextTheDefaultIsUsed) {
  for (const State& state : allStates()) {
    const Call<TypeParam> call(state, nullptr);
    EXPECT_TRUE(call.result);
    std::string report = rowOf<TypeParam>().zeroReport;
    if (state.defaultKind == Default::foreign) {
      EXPECT_EQ(&call.value.type(), (&typeTag<TypeParam, 1>)) << "copied as it stands";
    } else {
      const auto* value = anyCast<TypeParam>(&call.value);
      ASSERT_NE(value, nullptr);
      if (state.defaultKind == Default::own) report = rowOf<TypeParam>().samples[1].report;
      if constexpr (std::is_same_v<TypeParam, ObjectPtr>) {
        EXPECT_TRUE(*value);
        report = "{\n}";
      } else {
        EXPECT_EQ(*value,
                  state.defaultKind == Default::own ? sampleValue<TypeParam>(1) : TypeParam{});
      }
    }
    EXPECT_THAT(call.host.messages(), ElementsAre(call.noValueLine(), call.valueLine(report)));
  }
}

TYPE_TEST(InputSetter, NamesCompareExactly) {
  TestHost host;
  host.giveText("P", "x");
  host.giveText("p ", "x");
  Any value;
  EXPECT_TRUE(host.setInput(Orvel::typeOf<TypeParam>(), value, "p"));
}

TEST(InputSetterOfString, TextArrivesUnchanged) {
  for (const char* text : {" a b ", "a,b", "say \"hi\"", "line\nline", "\xff"}) {
    TestHost host;
    host.giveText("s", text);
    Any value;
    EXPECT_TRUE(host.setInput(Orvel::typeOf<Orvel::String>(), value, "s"));
    EXPECT_STREQ(anyCast<Orvel::String>(&value)->c_str(), text);
    EXPECT_THAT(host.messages(),
                ElementsAre("verbose Set input port 's': (string) \"" + std::string(text) + "\""));
  }
}

TEST(InputSetterOfInt, WorkedMessages) {
  TestHost host;
  host.giveText("count", "12abc");
  Any value;
  EXPECT_FALSE(host.setInput(Orvel::typeOf<std::int32_t>(), value, "count"));
  EXPECT_TRUE(host.setInput(Orvel::typeOf<std::int32_t>(), value, "other", false,
                            makeAny(std::int32_t{7})));
  EXPECT_THAT(
      host.messages(),
      ElementsAre("error Input port 'count' (int): Unable to convert '12abc' to an int value.",
                  "verbose No value was provided to vtlcmd for input port 'other' (int). A "
                  "default value will be used.",
                  "verbose Set input port 'other': (int) 7"));
}

TEST(InputSetterOfFloat3, WorkedMessages) {
  TestHost host;
  const Orvel::Type type = Orvel::typeOf<Math::float3>();
  Any value;
  host.giveText("pos", "1,2");
  EXPECT_FALSE(host.setInput(type, value, "pos"));
  host.giveText("pos", "1,x,3");
  EXPECT_FALSE(host.setInput(type, value, "pos"));
  EXPECT_THAT(host.messages(),
              ElementsAre("error Input port 'pos' (Math::float3): Cannot extract Math::float3 "
                          "value from '1,2': invalid number of vector components",
                          "error Input port 'pos' (Math::float3): Unable to convert 'x' to a "
                          "float value."));
}

/// A shared array that, when it ends, looks at what a result holds by then.
class EndWatch : public Orvel::Internal::ControlBlock {
 public:
  explicit EndWatch(const Any& result) : result_(result) {}
  virtual ~EndWatch() = default;

  Any holder() { return makeAny(StoredArray<float, 1>(&array_, this)); }
  bool resultHeldItsNewValue() const { return heldNewValue_; }

  void librarySlot() noexcept override {}
  void endObject() noexcept override {
    heldNewValue_ = result_.holdsValue() && anyCast<StoredArray<float, 1>>(&result_) == nullptr;
  }

 private:
  const Any& result_;
  Orvel::Array<float> array_;
  bool heldNewValue_ = false;
};

TYPE_TEST(InputSetter, OldValueEndsLast) {
  const bool hasText = !std::is_same_v<TypeParam, ObjectPtr>;
  for (const bool giveText : {false, hasText}) {
    for (const bool giveDefault : {false, true}) {
      TestHost host;
      if (giveText) host.giveText("p", rowOf<TypeParam>().samples[0].text);
      Any value;
      EndWatch watch(value);
      value = watch.holder();
      const Any defaultValue = giveDefault ? makeAny(sampleValue<TypeParam>(1)) : Any{};
      EXPECT_TRUE(host.setInput(Orvel::typeOf<TypeParam>(), value, "p", false, defaultValue));
      EXPECT_TRUE(watch.resultHeldItsNewValue());
    }
  }
}

TYPE_TEST(InputSetter, ResultMayBeItsOwnDefault) {
  TestHost host;
  const Orvel::String name = "p";
  const TypeParam sample = sampleValue<TypeParam>(1);
  Any value = makeAny(sample);
  inputSetter<TypeParam>(&name, false, Orvel::typeOf<TypeParam>(), &host.inputValues,
                         &host.jobValues, &value, &value, &host.logger);
  const auto* held = anyCast<TypeParam>(&value);
  ASSERT_NE(held, nullptr);
  if constexpr (std::is_same_v<TypeParam, ObjectPtr>) {
    EXPECT_EQ(held->get(), sample.get());
  } else {
    EXPECT_EQ(*held, sample);
  }
}

/// A manager whose values can't be copied.
void refuseCopies(AnyOpArgs* args) {
  if (args->op == AnyOp::copy) throw std::bad_alloc();
  if (args->op == AnyOp::destroy) args->self->manager = nullptr;
}

TEST(InputSetterOfInt, DefaultThatCannotBeCopiedLeavesTheResult) {
  TestHost host;
  const Orvel::String name = "p";
  Any defaultValue;
  defaultValue.manager = &refuseCopies;
  Any value = makeAny(std::int32_t{5});
  EXPECT_THROW(
      inputSetter<std::int32_t>(&name, false, Orvel::typeOf<std::int32_t>(), &host.inputValues,
                                &host.jobValues, &defaultValue, &value, &host.logger),
      std::bad_alloc);
  const auto* held = anyCast<std::int32_t>(&value);
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(*held, 5);
}

TEST(InputSetterOfInt, TextEndsAtItsFirstNul) {
  TestHost host;
  host.inputValues.insert("p", {"", Orvel::makeString({"12\0x", 4})});
  Any value;
  EXPECT_TRUE(host.setInput(Orvel::typeOf<std::int32_t>(), value, "p"));
  EXPECT_THAT(host.messages(), ElementsAre("verbose Set input port 'p': (int) 12"));
}

TEST(InputSetterOfObject, EveryPortWithoutDefaultGetsANewObject) {
  TestHost host;
  Any first;
  Any second;
  EXPECT_TRUE(host.setInput(Orvel::typeOf<ObjectPtr>(), first, "a"));
  EXPECT_TRUE(host.setInput(Orvel::typeOf<ObjectPtr>(), second, "b"));
  const auto* one = anyCast<ObjectPtr>(&first);
  const auto* other = anyCast<ObjectPtr>(&second);
  ASSERT_TRUE(one != nullptr && other != nullptr);
  EXPECT_NE(one->get(), other->get());
  EXPECT_EQ(Orvel::useCount(*one), 1U);
  EXPECT_EQ(Orvel::useCount(*other), 1U);
}

TEST(InputSetterOfObject, DefaultIsShared) {
  const ObjectPtr object = Vantrel::createObject();
  TestHost host;
  Any value;
  EXPECT_TRUE(host.setInput(Orvel::typeOf<ObjectPtr>(), value, "geo", false, makeAny(object)));
  EXPECT_EQ(anyCast<ObjectPtr>(&value)->get(), object.get());
  EXPECT_EQ(Orvel::useCount(object), 2U);
}

#ifndef _WIN32
// There each library has allocation functions of its own, and only the program's are counted.
TYPE_TEST(InputSetter, NothingStaysInUseBehindTheRun) {
  for (const State& state : allStates()) {
    for (const char* text : {rowOf<TypeParam>().samples[0].text, "neither, this", "", "1,2,3,x",
                             static_cast<const char*>(nullptr)}) {
      EXPECT_EQ(testing::blocksLeftBy([&] { Call<TypeParam>(state, text); }), 0);
    }
  }
}
#endif

}  // namespace
}  // namespace vtlcmd
