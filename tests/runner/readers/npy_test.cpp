#include "readers/npy.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>

#include "readers/read_error.h"
#include "runner/support/npy_bytes.h"
#include "values/library_array.h"

namespace vtlcmd::runner {
namespace {

template <typename T>
std::vector<T> elementsOf(const Orvel::Value& value) {
  const Orvel::Array<T>& array = arrayIn<T>(value);
  return std::vector<T>(array.begin(), array.end());
}

template <typename T>
Bytes swappedBytesOf(const std::vector<T>& numbers) {
  Bytes bytes = bytesOf(numbers);
  for (auto start = bytes.begin(); start != bytes.end(); start += sizeof(T))
    std::reverse(start, start + sizeof(T));
  return bytes;
}

std::string typeOf(const Orvel::Value& value) {
  return value.getType().getFullyQualifiedName().c_str();
}

Orvel::Value valueIn(const Bytes& file, NpyForm form = {}) {
  MemorySource source(file);
  return parseNpy(source, form).value;
}

std::string npyRefusal(const Bytes& file) {
  try {
    valueIn(file);
  } catch (const ReadError& error) {
    return error.what();
  }
  return "accepted";
}

/// Reads two numbers in both byte orders.
template <typename T>
void expectBothOrders(const std::string& code, const std::string& type,
                      const std::vector<T>& numbers) {
  const auto read = [&](char order, const Bytes& data) {
    return valueIn(npyFile(npyHeader(std::string(1, order).append(code), "(2,)"), data));
  };
  const Orvel::Value little = read('<', bytesOf(numbers));
  const Orvel::Value big = read('>', swappedBytesOf(numbers));
  EXPECT_EQ(typeOf(little), type);
  EXPECT_EQ(elementsOf<T>(little), numbers);
  EXPECT_EQ(elementsOf<T>(big), numbers);
}

TEST(Npy, EveryElementTypeInBothByteOrders) {
  expectBothOrders<std::int8_t>("i1", "array<signed char>", {-128, 127});
  expectBothOrders<std::uint8_t>("u1", "array<unsigned char>", {0, 255});
  expectBothOrders<std::int16_t>("i2", "array<short>", {-32768, 258});
  expectBothOrders<std::uint16_t>("u2", "array<ushort>", {258, 65535});
  expectBothOrders<std::int32_t>("i4", "array<int>", {-2147483647, 16909060});
  expectBothOrders<std::uint32_t>("u4", "array<uint>", {16909060, 4294967295});
  expectBothOrders<std::int64_t>("i8", "array<long>", {-9223372036854775807, 72623859790382856});
  expectBothOrders<std::uint64_t>("u8", "array<ulong>", {18446744073709551615U, 3});
  expectBothOrders<float>("f4", "array<float>", {1.5F, -0.1F});
  expectBothOrders<double>("f8", "array<double>", {1.5, -0.1});
}

TEST(Npy, EveryByteButZeroIsTrue) {
  const Orvel::Value value = valueIn(npyFile(npyHeader("|b1", "(3,)"), {0, 1, 2}));
  EXPECT_EQ(elementsOf<bool>(value), (std::vector<bool>{false, true, true}));
}

TEST(Npy, RowsInBothOrders) {
  const Bytes data = bytesOf<std::int32_t>({1, 2, 3, 4, 5, 6});
  Orvel::ArrayValue rows(valueIn(npyFile(npyHeader("<i4", "(2, 3)"), data)));
  EXPECT_EQ(elementsOf<std::int32_t>(rows.getElement(0)), (std::vector<std::int32_t>{1, 2, 3}));
  EXPECT_EQ(elementsOf<std::int32_t>(rows.getElement(1)), (std::vector<std::int32_t>{4, 5, 6}));
  Orvel::ArrayValue columns(valueIn(npyFile(npyHeader("<i4", "(2, 3)", "True"), data)));
  EXPECT_EQ(elementsOf<std::int32_t>(columns.getElement(0)), (std::vector<std::int32_t>{1, 3, 5}));
  EXPECT_EQ(elementsOf<std::int32_t>(columns.getElement(1)), (std::vector<std::int32_t>{2, 4, 6}));
}

TEST(Npy, ThreeDimensionsInBothOrders) {
  const Bytes data = bytesOf<std::int16_t>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
  const auto lastRow = [&](const std::string& fortranOrder) {
    const Orvel::Value value = valueIn(npyFile(npyHeader("<i2", "(2, 3, 2)", fortranOrder), data));
    EXPECT_EQ(typeOf(value), "array<array<array<short>>>");
    return elementsOf<std::int16_t>(
        Orvel::ArrayValue(Orvel::ArrayValue(value).getElement(1)).getElement(2));
  };
  EXPECT_EQ(lastRow("False"), (std::vector<std::int16_t>{10, 11}));
  EXPECT_EQ(lastRow("True"), (std::vector<std::int16_t>{5, 11}));
}

TEST(Npy, LongRowsInFortranOrder) {
  const Bytes data = bytesOf<std::int32_t>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  const Orvel::Value value = valueIn(npyFile(npyHeader("<i4", "(1, 3, 4)", "True"), data));
  EXPECT_EQ(elementsOf<std::int32_t>(
                Orvel::ArrayValue(Orvel::ArrayValue(value).getElement(0)).getElement(1)),
            (std::vector<std::int32_t>{2, 5, 8, 11}));
}

TEST(Npy, VectorsInBothOrders) {
  using Vantrel::Math::float2;
  const Bytes data = bytesOf<float>({1, 2, 3, 4, 5, 6});
  const auto read = [&](const std::string& fortranOrder) {
    const Orvel::Value value =
        valueIn(npyFile(npyHeader("<f4", "(3, 2)", fortranOrder), data), NpyForm{.vectors = true});
    EXPECT_EQ(typeOf(value), "array<Math::float2>");
    return elementsOf<float2>(value);
  };
  EXPECT_EQ(read("False"), (std::vector<float2>{{{1, 2}}, {{3, 4}}, {{5, 6}}}));
  EXPECT_EQ(read("True"), (std::vector<float2>{{{1, 4}}, {{2, 5}}, {{3, 6}}}));
}

TEST(Npy, RowsOfVectors) {
  using Vantrel::Math::double3;
  const Bytes data = bytesOf<double>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  const auto lastRow = [&](const std::string& fortranOrder) {
    const Orvel::Value value = valueIn(npyFile(npyHeader("<f8", "(2, 2, 3)", fortranOrder), data),
                                       NpyForm{.vectors = true});
    EXPECT_EQ(typeOf(value), "array<array<Math::double3>>");
    return elementsOf<double3>(Orvel::ArrayValue(value).getElement(1));
  };
  EXPECT_EQ(lastRow("False"), (std::vector<double3>{{{7, 8, 9}}, {{10, 11, 12}}}));
  EXPECT_EQ(lastRow("True"), (std::vector<double3>{{{2, 6, 10}}, {{4, 8, 12}}}));
}

TEST(Npy, RefusesVectorsOfOtherLengthsAndElements) {
  const auto refusal = [](const std::string& code, const std::string& shape) {
    try {
      valueIn(npyFile(npyHeader(code, shape), Bytes(800)), NpyForm{.vectors = true});
    } catch (const ReadError& error) {
      return std::string(error.what());
    }
    return std::string("accepted");
  };
  const std::string wrongShape = "vectors want a last dimension of 2 to 4 behind another one";
  EXPECT_EQ(refusal("<f4", "(3,)"), wrongShape);
  EXPECT_EQ(refusal("<f4", "(3, 1)"), wrongShape);
  EXPECT_EQ(refusal("<f8", "(3, 5)"), wrongShape);
  EXPECT_EQ(refusal("<i4", "(3, 2)"), "elements of type '<i4' make no vectors; floats do");
}

TEST(Npy, NumbersBeyondOneBlock) {
  std::vector<std::int32_t> numbers(100'000);
  std::iota(numbers.begin(), numbers.end(), -7);
  const std::string shape = "(100000,)";
  EXPECT_EQ(elementsOf<std::int32_t>(valueIn(npyFile(npyHeader("<i4", shape), bytesOf(numbers)))),
            numbers);
  EXPECT_EQ(
      elementsOf<std::int32_t>(valueIn(npyFile(npyHeader(">i4", shape), swappedBytesOf(numbers)))),
      numbers);
  EXPECT_EQ(
      elementsOf<std::int32_t>(valueIn(npyFile(npyHeader("<i4", shape, "True"), bytesOf(numbers)))),
      numbers);
}

/// Says that there is more than there is, as a file does that is cut short while it is read.
class CutSource final : public ByteSource {
 public:
  CutSource(std::span<const unsigned char> bytes, std::uint64_t missing)
      : source_(bytes), missing_(missing) {}
  std::size_t read(std::span<unsigned char> bytes) override { return source_.read(bytes); }
  std::uint64_t remaining() const override { return source_.remaining() + missing_; }

 private:
  MemorySource source_;
  std::uint64_t missing_;
};

TEST(Npy, FilesThatBecomeShorterWhileTheyAreRead) {
  for (const char* fortranOrder : {"False", "True"}) {
    for (const char* order : {"<", ">"}) {
      const std::string header = npyHeader(std::string(order) + "i4", "(3,)", fortranOrder);
      for (std::size_t left = 0; left < 12; ++left) {
        const Bytes part = npyFile(header, Bytes(left));
        CutSource source(part, 12 - left);
        try {
          parseNpy(source);
          ADD_FAILURE() << left;
        } catch (const ReadError& error) {
          EXPECT_STREQ(error.what(), "the file became shorter while it was read");
        }
      }
    }
  }
}

TEST(Npy, SmallIntegersAreWidenedOnDemand) {
  const NpyForm form{.widened = true};
  const auto read = [&](const char* code, const Bytes& data) {
    return valueIn(npyFile(npyHeader(code, "(2,)"), data), form);
  };
  EXPECT_EQ(elementsOf<std::int32_t>(read("|i1", bytesOf<std::int8_t>({-128, 127}))),
            (std::vector<std::int32_t>{-128, 127}));
  EXPECT_EQ(elementsOf<std::uint32_t>(read("|u1", bytesOf<std::uint8_t>({0, 255}))),
            (std::vector<std::uint32_t>{0, 255}));
  EXPECT_EQ(elementsOf<std::int32_t>(read(">i2", swappedBytesOf<std::int16_t>({-32768, 258}))),
            (std::vector<std::int32_t>{-32768, 258}));
  EXPECT_EQ(elementsOf<std::uint32_t>(read("<u2", bytesOf<std::uint16_t>({258, 65535}))),
            (std::vector<std::uint32_t>{258, 65535}));
}

TEST(Npy, HalfFloatsBecomeFloats) {
  const std::vector<std::uint16_t> halves{0x0000, 0x8000, 0x0001, 0x83FF, 0x0400, 0x3C00,
                                          0xC100, 0x7BFF, 0x7C00, 0xFC00, 0x7E00, 0x3555};
  const Bytes file = npyFile(npyHeader("<f2", "(12,)"), bytesOf(halves));
  const std::vector<float> floats = elementsOf<float>(valueIn(file));
  ASSERT_EQ(floats.size(), halves.size());
  EXPECT_THAT(floats, testing::ElementsAre(0.0F, -0.0F, 0x1p-24F, -0x3FFp-24F, 0x1p-14F, 1.0F,
                                           -2.5F, 65504.0F, std::numeric_limits<float>::infinity(),
                                           -std::numeric_limits<float>::infinity(),
                                           testing::IsNan(), 0x1.554p-2F));
  EXPECT_TRUE(std::signbit(floats[1]));
  using Vantrel::Math::float2;
  EXPECT_EQ(elementsOf<float2>(valueIn(
                npyFile(npyHeader("<f2", "(1, 2)"), bytesOf<std::uint16_t>({0x3C00, 0xC000})),
                NpyForm{.vectors = true})),
            (std::vector<float2>{{{1, -2}}}));
}

TEST(Npy, TellsWhatTheFileHas) {
  const auto described = [](const char* code, const char* shape, NpyForm form) {
    const Bytes file = npyFile(npyHeader(code, shape), Bytes(24));
    MemorySource source(file);
    return describe(parseNpy(source, form).facts);
  };
  EXPECT_EQ(described("<f4", "(3, 2)", {.vectors = true}), "float32, 3 × 2");
  EXPECT_EQ(described("|b1", "(2, 3, 4)", {}), "bool, 2 × 3 × 4");
  EXPECT_EQ(described("<i2", "(12,)", {}), "int16, 12");
  EXPECT_EQ(described("<i2", "(12,)", {.widened = true}), "int16, 12, widened to int");
  EXPECT_EQ(described("<i4", "(6,)", {.widened = true}), "int32, 6");
  EXPECT_EQ(described("<f2", "(12,)", {}), "float16, 12, widened to float");
}

TEST(Npy, HeadersLongerThanAnyOneWrites) {
  const Bytes file = npyFile(std::string((1 << 20) + 1, ' '), {}, 2);
  EXPECT_EQ(npyRefusal(file), "the header has more than 1048576 bytes");
}

TEST(Npy, EmptyArrays) {
  EXPECT_EQ(elementsOf<float>(valueIn(npyFile(npyHeader("<f4", "(0,)"), {}))).size(), 0U);
  const Orvel::Value rows = valueIn(npyFile(npyHeader("<f4", "(3, 0)"), {}));
  EXPECT_EQ(Orvel::ArrayValue(rows).size(), 3U);
  for (const char* fortranOrder : {"False", "True"}) {
    EXPECT_EQ(npyRefusal(npyFile(npyHeader("<f4", "(0, 18446744073709551615)", fortranOrder), {})),
              "accepted");
  }
}

TEST(Npy, AllVersions) {
  for (unsigned char version = 1; version <= 3; ++version) {
    const Orvel::Value value =
        valueIn(npyFile(npyHeader("<i4", "(1,)"), bytesOf<std::int32_t>({7}), version));
    EXPECT_EQ(elementsOf<std::int32_t>(value), (std::vector<std::int32_t>{7}));
  }
}

TEST(Npy, RefusesBytesBehindTheArray) {
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "(1,)"), Bytes(5))),
            "the file is 1 byte longer than its header says");
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "(2, 0)"), Bytes(8))),
            "the file is 8 bytes longer than its header says");
}

TEST(Npy, HeadersInOtherForms) {
  const Bytes data = bytesOf<std::int32_t>({7});
  EXPECT_EQ(npyRefusal(npyFile(R"({"shape":(1,),"fortran_order":True,"descr":"=i4"})", data)),
            "accepted");
  EXPECT_EQ(npyRefusal(npyFile("{'descr': '<i4', 'fortran_order': False, 'shape': (1)}", data)),
            "accepted");
}

TEST(Npy, NoArrayFile) {
  EXPECT_EQ(npyRefusal({}), "this is no NumPy array file");
  EXPECT_EQ(npyRefusal(Bytes(100, 'x')), "this is no NumPy array file");
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "(0,)"), {}, 4)),
            "the format version 4 isn't supported");
}

std::string cutShort(std::size_t available) {
  std::string text = "the file is cut short: its elements take more than the ";
  text += std::to_string(available);
  text += " bytes behind the header";
  return text;
}

TEST(Npy, CutShort) {
  const Bytes whole = npyFile(npyHeader("<i4", "(2,)"), bytesOf<std::int32_t>({1, 2}));
  const std::size_t dataStart = whole.size() - 8;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const std::string expected = size < 6           ? "this is no NumPy array file"
                                 : size < dataStart ? "the file is cut short in its header"
                                                    : cutShort(size - dataStart);
    EXPECT_EQ(npyRefusal(part), expected) << size;
  }
}

TEST(Npy, ShapesThatNoFileCouldHold) {
  for (const char* shape : {"(18446744073709551615,)", "(4611686018427387905,)",
                            "(4294967296, 4294967296)", "(3, 6148914691236517206, 2)"})
    EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", shape), Bytes(4))), cutShort(4)) << shape;
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "(1000001, 0)"), {})),
            "the shape has more than 1000000 empty rows");
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "(4294967296, 4294967296, 0)"), {})),
            "the shape has more than 1000000 empty rows");
}

TEST(Npy, DimensionsAndTypesOutOfReach) {
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "()"), Bytes(4))),
            "the array has 0 dimensions; 1 to 3 are supported");
  EXPECT_EQ(npyRefusal(npyFile(npyHeader("<i4", "(1, 1, 1, 1)"), Bytes(4))),
            "the array has 4 dimensions; 1 to 3 are supported");
  for (const char* type : {"<c16", "<f16", "<U4", "|O", "i4", "", "<M8[ns]"}) {
    EXPECT_EQ(npyRefusal(npyFile(npyHeader(type, "(1,)"), Bytes(16))),
              "elements of type '" + std::string(type) + "' aren't supported");
  }
}

struct BadHeader {
  const char* text;
  const char* reason;
};

class BadHeaders : public testing::TestWithParam<BadHeader> {};

TEST_P(BadHeaders, SayWhy) {
  EXPECT_EQ(npyRefusal(npyFile(GetParam().text, Bytes(4))),
            std::string("the header can't be understood: ") + GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    All, BadHeaders,
    testing::Values(BadHeader{"", "expected '{'"},
                    BadHeader{"{", "expected a text; arrays of records aren't supported"},
                    BadHeader{"{}", "a key is missing"},
                    BadHeader{"{'descr' '<i4'}", "expected ':'"},
                    BadHeader{"{'descr': '<i4", "a text has no end"},
                    BadHeader{"{'descr': [('a', '<i4')]}",
                              "expected a text; arrays of records aren't supported"},
                    BadHeader{"{'descr': '<i4', 'fortran_order': False, 'shape': (1,)} }",
                              "something follows its '}'"},
                    BadHeader{"{'other': 1}", "the key 'other' has no meaning"},
                    BadHeader{"{'fortran_order': 0}", "expected True or False"},
                    BadHeader{"{'shape': 3}", "expected '('"},
                    BadHeader{"{'shape': (-3,)}", "expected a number of elements"},
                    BadHeader{"{'shape': (18446744073709551616,)}",
                              "expected a number of elements"},
                    BadHeader{"{'shape': (3 4)}", "expected ')'"},
                    BadHeader{"{'shape': (3,) 'descr': '<i4'}", "expected '}'"}));

}  // namespace
}  // namespace vtlcmd::runner
