#include "vtlcmd/input/set_from_string.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/test_host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestHost;

template <typename T>
class SetVectorFromString : public ::testing::Test {
 protected:
  using Component = typename T::ComponentType;
  static constexpr std::size_t count = T::componentCount;

  std::string name() const { return valueType<T>().name; }
  std::string componentEnd() const { return testing::rowOf<T>().parseErrorEnd; }
  /// `piece` repeated to a text of `pieces` pieces.
  static std::string repeat(const std::string& piece, std::size_t pieces) {
    std::string text = piece;
    for (std::size_t i = 1; i < pieces; ++i) text += "," + piece;
    return text;
  }

  std::vector<std::string> set(const std::string& text) {
    VtlCmdLogger logger(10);
    value_ = makeAny(std::int32_t{5});
    setFromString<T>(value_, text.c_str(), &logger, "P: ");
    return TestHost::messagesOf(logger);
  }

  Any value_;
};
template <typename T>
using IsVector = std::bool_constant<VectorType<T>>;
TYPE_TEST_SUITE(SetVectorFromString, testing::TestTypesWhere<IsVector>);

TYPE_TEST(SetVectorFromString, TakesAsManyPiecesAsComponents) {
  std::string text = "1";
  for (std::size_t i = 1; i < this->count; ++i) text += ", " + std::to_string(i + 1) + " ";
  EXPECT_THAT(this->set(text), IsEmpty());
  const auto* vector = anyCast<TypeParam>(&this->value_);
  ASSERT_NE(vector, nullptr);
  for (std::size_t i = 0; i < this->count; ++i) {
    EXPECT_EQ(vector->components[i], static_cast<typename TypeParam::ComponentType>(i + 1));
  }
}

TYPE_TEST(SetVectorFromString, WrongCountIsOneMessageAndNothingIsParsed) {
  for (const std::string& text :
       {std::string(), this->repeat("1", this->count - 1), this->repeat("1", this->count + 1),
        this->repeat("x", this->count + 1), this->repeat("1", this->count) + ",",
        std::string("1 2 3"), std::string("1;2;3"), std::string(5000, ',')}) {
    EXPECT_THAT(this->set(text),
                ElementsAre("error P: Cannot extract " + this->name() + " value from '" + text +
                            "': invalid number of vector components"));
    EXPECT_FALSE(this->value_.holdsValue());
  }
}

TYPE_TEST(SetVectorFromString, EveryBadPieceIsToldAndTheVectorDropped) {
  const std::vector<std::string> messages = this->set(this->repeat(" x ", this->count));
  ASSERT_EQ(messages.size(), this->count);
  for (const std::string& message : messages) {
    EXPECT_EQ(message, "error P: Unable to convert ' x " + this->componentEnd());
  }
  EXPECT_FALSE(this->value_.holdsValue());

  EXPECT_THAT(this->set("," + this->repeat("1", this->count - 1)),
              ElementsAre("error P: Unable to convert '" + this->componentEnd()));
  EXPECT_FALSE(this->value_.holdsValue());
}

TYPE_TEST(SetVectorFromString, EveryScalarLimitHoldsForEachComponent) {
  for (const char* piece : {"inf", "nan", "1x", "1e999", "1e-320"}) {
    EXPECT_THAT(
        this->set(this->repeat("1", this->count - 1) + "," + piece),
        ElementsAre("error P: Unable to convert '" + std::string(piece) + this->componentEnd()));
  }
  for (const char* piece : {"1e39", "1e-40", "3.4028235e+38"}) {
    const bool isDouble = std::is_same_v<typename TypeParam::ComponentType, double>;
    EXPECT_EQ(this->set(this->repeat(piece, this->count)).size(), isDouble ? 0U : this->count);
    EXPECT_EQ(this->value_.holdsValue(), isDouble);
  }
}

struct Float3Row {
  const char* text;
  std::vector<std::string> messages;
};

TEST(SetFloat3FromString, AnswersEveryText) {
  const auto piece = [](const char* text) {
    return "error P: Unable to convert '" + std::string(text) + "' to a float value.";
  };
  const auto count = [](const char* text) {
    return "error P: Cannot extract Math::float3 value from '" + std::string(text) +
           "': invalid number of vector components";
  };
  for (const Float3Row& row : std::vector<Float3Row>{
           {"1,2,3", {}},
           {"1, 2, 3", {}},
           {"1e3,0x10,-.5", {}},
           {"", {count("")}},
           {"1,2", {count("1,2")}},
           {"1,2,3,4", {count("1,2,3,4")}},
           {"1,2,3,", {count("1,2,3,")}},
           {"1 2 3", {count("1 2 3")}},
           {"1;2;3", {count("1;2;3")}},
           {"1,,3", {piece("")}},
           {"1,x,3", {piece("x")}},
           {"a,b,c", {piece("a"), piece("b"), piece("c")}},
           {"{1, 2, 3}", {piece("{1"), piece(" 3}")}},
           {"1e39,0,0", {piece("1e39")}},
       }) {
    VtlCmdLogger logger(10);
    Any value = makeAny(true);
    setFromString<Math::float3>(value, row.text, &logger, "P: ");
    EXPECT_EQ(TestHost::messagesOf(logger), row.messages) << row.text;
    EXPECT_EQ(value.holdsValue(), row.messages.empty()) << row.text;
  }
}

TEST(SetFloat3FromString, ReadsTheComponentsInOrder) {
  VtlCmdLogger logger(10);
  Any value;
  setFromString<Math::float3>(value, "1e3,0x10,-.5", &logger, "");
  EXPECT_EQ(*anyCast<Math::float3>(&value), (Math::float3{{1000, 16, -0.5F}}));
  setFromString<Math::double3>(value, "1e39,0,0", &logger, "");
  EXPECT_EQ(*anyCast<Math::double3>(&value), (Math::double3{{1e39, 0, 0}}));
}

}  // namespace
}  // namespace vtlcmd
