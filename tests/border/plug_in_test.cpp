#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "border/host.h"
#include "border/loaded_plug_in.h"
#include "support/loaded_library.h"
#include "vtlcmd/host/any.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/vantrel_executor.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd {
namespace {

using ::testing::HasSubstr;
using testing::LoadedPlugIn;
using testing::Port;
using VantrelGraph::Executor::TypeTranslation;
using VantrelGraph::Executor::TypeTranslationPreview;

/// Slot numbers with a virtual destructor of one entry; here it has two.
constexpr std::size_t entryOf(std::size_t slot) { return slot == 0 ? 0 : slot + 1; }

class PlugIn : public ::testing::Test {
 protected:
  ~PlugIn() override {
    if (object_ != nullptr) object_->destroy();
  }

  template <typename Function>
  Function* slot(std::size_t number) const {
    return reinterpret_cast<Function*>(entry(number));
  }
  void* entry(std::size_t slotNumber) const {
    void* const* table = *reinterpret_cast<void* const* const*>(object_);
    return table[entryOf(slotNumber)];
  }
  /// The library that the slot's operation is in.
  std::string libraryOfSlot(std::size_t number) const { return testing::libraryAt(entry(number)); }

  LoadedPlugIn library_;
  TypeTranslation* object_ = library_.create();
};

TEST_F(PlugIn, EachSlotLeadsToItsOperation) {
  Port port;
  Orvel::Array<Orvel::String> names;
  slot<void(TypeTranslation*, Orvel::Array<Orvel::String>&)>(3)(object_, names);
  EXPECT_EQ(names.size, testing::supportedCount);

  Any value;
  port.inputValues.insert("port", {"", "12"});
  using SetInput = bool(TypeTranslation*, const Orvel::Type&, Any&, InputValueData*);
  EXPECT_TRUE(slot<SetInput>(4)(object_, Orvel::typeOf<std::int32_t>(), value, &port.input));
  EXPECT_EQ(*anyCast<std::int32_t>(&value), 12);

  using GetAny = bool(TypeTranslation*, const Any&, OutputValueData*);
  EXPECT_TRUE(slot<GetAny>(5)(object_, makeAny(std::int32_t{5}), &port.output));
  EXPECT_EQ(port.logger.messages.back().text, "Output port 'port': (int) 5");

  using GetValue = bool(TypeTranslation*, const Orvel::Value&, OutputValueData*);
  EXPECT_TRUE(slot<GetValue>(11)(object_, Orvel::makeValue(1.5F), &port.output));
  EXPECT_EQ(port.logger.messages.back().text, "Output port 'port': (float) 1.5");

  slot<void(TypeTranslation*)>(1)(object_);
  object_ = nullptr;
}

TEST_F(PlugIn, SixSlotsAreItsOwnAndSixTheExecutors) {
  constexpr std::size_t ownSlots[] = {0, 1, 3, 4, 5, 11};
  constexpr std::size_t inheritedSlots[] = {2, 6, 7, 8, 9, 10};
  for (const std::size_t own : ownSlots) {
    EXPECT_THAT(libraryOfSlot(own), HasSubstr("VtlCmdTranslation")) << own;
  }
  for (const std::size_t inherited : inheritedSlots) {
    EXPECT_THAT(libraryOfSlot(inherited), HasSubstr("VantrelBoardExecutor")) << inherited;
  }
}

TEST_F(PlugIn, DestroyDoesNothingForANullObject) { slot<void(TypeTranslation*)>(1)(nullptr); }

TEST_F(PlugIn, ValuesOutliveTheObjectThatMadeThem) {
  Port port;
  Any value;
  EXPECT_TRUE(object_->setInputValue(Orvel::typeOf<Math::double4>(), value, &port.input));
  object_->destroy();
  object_ = nullptr;
  const Any copy = value;
  EXPECT_EQ(*anyCast<Math::double4>(&copy), Math::double4{});
}

TEST(PlugInLibrary, IsUnloadedWholeAndCanBeLoadedAgain) {
  for (int round = 0; round < 3; ++round) {
    ASSERT_FALSE(LoadedPlugIn::isInProcess());
    const LoadedPlugIn library;
    ASSERT_TRUE(LoadedPlugIn::isInProcess());
    TypeTranslation* object = library.create();
    Port port;
    EXPECT_TRUE(static_cast<TypeTranslationPreview*>(object)->getOutputValue(Orvel::makeValue(true),
                                                                             &port.output));
    EXPECT_EQ(port.logger.messages.back().text, "Output port 'port': (bool) true");
    object->destroy();
  }
  EXPECT_FALSE(LoadedPlugIn::isInProcess());
}

}  // namespace
}  // namespace vtlcmd
