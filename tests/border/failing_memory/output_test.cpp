#include <functional>
#include <gtest/gtest.h>

#include "border/failing_memory/every_allocation.h"
#include "border/host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::testing {
namespace {

using VantrelGraph::Executor::TypeTranslationPreview;

class FailingMemoryAtOutputs : public ::testing::Test {
 protected:
  ~FailingMemoryAtOutputs() override { object_->destroy(); }

  /// Reports with every allocation failing. What is in the logger then are the first steps of an
  /// undisturbed call, and the next call is one.
  void failEach(const std::function<bool(Host&)>& report) {
    Host undisturbed;
    const bool supported = report(undisturbed);
    const Collected expected(undisturbed.logger);
    failEveryAllocation(
        [] { return Host(); }, [&](Host& host) { report(host); },
        [&](Host& host, bool threw) {
          const Collected collected(host.logger);
          EXPECT_TRUE(threw ? collected.isBeginningOf(expected) : collected == expected);
          host.logger.messages.resize(Host::oldMessages);
          EXPECT_EQ(report(host), supported);
          EXPECT_EQ(Collected(host.logger), expected);
        });
  }

  void failEachOfAny(const Any& value) {
    failEach([&](Host& host) { return object_->getOutputAny(value, &host.output); });
  }
  void failEachOfValue(const Orvel::Value& value) {
    failEach([&](Host& host) { return object_->getOutputValue(value, &host.output); });
  }

  template <typename T, std::uint32_t Rank>
  void failEachOfArray() {
    const StoredArray<T, Rank> array = nestedArray<T, Rank>(sampleValue<T>(0));
    failEachOfAny(makeAny(array));
    failEachOfValue(Orvel::makeValue(array));
  }

  LoadedPlugIn library_;
  TypeTranslationPreview* object_ = static_cast<TypeTranslationPreview*>(library_.create());
};

template <typename T>
class FailingMemoryAtOutputsOf : public FailingMemoryAtOutputs {};
TYPE_TEST_SUITE(FailingMemoryAtOutputsOf, RegisteredTestTypes);

TYPE_TEST(FailingMemoryAtOutputsOf, SingleValues) {
  this->failEachOfAny(makeAny(sampleValue<TypeParam>(0)));
  this->failEachOfValue(Orvel::makeValue(sampleValue<TypeParam>(0)));
}

TYPE_TEST(FailingMemoryAtOutputsOf, Arrays) {
  this->template failEachOfArray<TypeParam, 1>();
  this->template failEachOfArray<TypeParam, 2>();
  this->template failEachOfArray<TypeParam, 3>();
}

TYPE_TEST(FailingMemoryAtOutputsOf, SuppressedValues) {
  const Any any = makeAny(sampleValue<TypeParam>(0));
  this->failEach([&](Host& host) {
    host.logger.printLimit = 0;
    return this->object_->getOutputAny(any, &host.output);
  });
}

TEST_F(FailingMemoryAtOutputs, ListOfTexts) {
  std::vector<Orvel::String> texts;
  for (int i = 0; i < 12; ++i) texts.emplace_back("a text longer than the usual room of a string");
  failEachOfAny(makeAny(arrayOf(texts)));
  failEachOfValue(Orvel::makeValue(arrayOf(texts)));
}

TEST_F(FailingMemoryAtOutputs, ObjectWithProperties) {
  const ObjectPtr object = Vantrel::createObject();
  Vantrel::Geometry::setComponentProperty(*object, {"points", 6}, 3);
  Vantrel::Geometry::setDataProperty(*object, {"position", 8},
                                     makeAny(arrayOf<Math::float3>({{}, {}, {}})));
  Vantrel::Geometry::setDataProperty(*object, {"label", 5},
                                     makeAny(arrayOf<Orvel::String>({"a", "b", "c"})));
  failEachOfAny(makeAny(object));
  failEachOfAny(makeAny(arrayOf<ObjectPtr>({object, object, object})));
  failEachOfValue(Orvel::makeValue(object));
}

TEST_F(FailingMemoryAtOutputs, UnsupportedTypes) {
  failEachOfValue(Orvel::makeZero(Orvel::typeOf<Math::float2x2>()));
  failEachOfValue(Orvel::makeZero(Orvel::makeArrayType(Orvel::typeOf<std::int16_t>())));
  failEachOfAny(makeAny(Vantrel::Simulation::Time{}));
  failEachOfAny(Any{});
}

TEST_F(FailingMemoryAtOutputs, SecondReportOfAPort) {
  struct Reported : Host {
    Reported() { logger.reportOutputValue(name.c_str(), "an earlier type", "an earlier value"); }
  };
  const Orvel::Value value = Orvel::makeValue(Orvel::String("a value of more than a few bytes"));
  Reported before;
  Reported undisturbed;
  ASSERT_TRUE(object_->getOutputValue(value, &undisturbed.output));
  failEveryAllocation(
      [] { return Reported(); },
      [&](Reported& host) { object_->getOutputValue(value, &host.output); },
      [&](const Reported& host, bool threw) {
        const Collected collected(host.logger);
        const bool replaced = collected.outputs == Collected(undisturbed.logger).outputs;
        EXPECT_TRUE(replaced || collected.outputs == Collected(before.logger).outputs);
        EXPECT_TRUE(threw || replaced);
      });
}

TEST_F(FailingMemoryAtOutputs, NullRecord) {
  const Orvel::Value value = Orvel::makeValue(1.5);
  ::testing::internal::CaptureStderr();
  failEveryAllocation([] { return Any(); },
                      [&](Any& any) {
                        object_->getOutputAny(any, nullptr);
                        object_->getOutputValue(value, nullptr);
                      },
                      [](const Any&, bool) {});
  ::testing::internal::GetCapturedStderr();
}

}  // namespace
}  // namespace vtlcmd::testing
