#include "readers/npy.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <string_view>

#include "readers/npy_header.h"
#include "readers/npy_values.h"
#include "readers/read_error.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

/// Without elements the file's size says nothing about the rows; so many of them are still sane.
constexpr std::uint64_t mostEmptyRows = 1'000'000;

/// What numbers become in the graph system.
struct NumberType {
  std::string_view name;
  MakeRows makeRows;
  void (*fillRows)(const std::vector<void*>&, const NpyLayout&, NpyNumbers&);
};

template <typename Stored, typename Number>
constexpr NumberType numberType() {
  return {valueType<Number>().name, makeRows<Number>, fillRows<Stored, Number>};
}

struct ElementCode {
  std::string_view code;
  std::string_view name;
  std::uint64_t size;
  NumberType kept;
  /// As a type that the graph system reports.
  NumberType widened;
  /// The graph system has no type like the file's.
  bool alwaysWidened;
  /// Of vectors of two, three and four elements; null for elements that have none.
  std::array<MakeRows, 3> makeVectorRows;
};

template <typename Stored, typename Kept = Stored, typename Widened = Kept>
constexpr ElementCode elementCode(std::string_view code, std::string_view name) {
  ElementCode row{code,
                  name,
                  sizeof(Stored),
                  numberType<Stored, Kept>(),
                  numberType<Stored, Widened>(),
                  !std::is_same_v<Stored, Kept>,
                  {}};
  if constexpr (std::is_floating_point_v<Kept>) {
    using Vantrel::Math::Vector;
    row.makeVectorRows = {makeRows<Vector<Kept, 2>>, makeRows<Vector<Kept, 3>>,
                          makeRows<Vector<Kept, 4>>};
  }
  return row;
}

constexpr std::array elementCodes{
    elementCode<bool>("b1", "bool"),
    elementCode<std::int8_t, std::int8_t, std::int32_t>("i1", "int8"),
    elementCode<std::uint8_t, std::uint8_t, std::uint32_t>("u1", "uint8"),
    elementCode<std::int16_t, std::int16_t, std::int32_t>("i2", "int16"),
    elementCode<std::uint16_t, std::uint16_t, std::uint32_t>("u2", "uint16"),
    elementCode<std::int32_t>("i4", "int32"),
    elementCode<std::uint32_t>("u4", "uint32"),
    elementCode<std::int64_t>("i8", "int64"),
    elementCode<std::uint64_t>("u8", "uint64"),
    elementCode<Half, float>("f2", "float16"),
    elementCode<float>("f4", "float32"),
    elementCode<double>("f8", "float64"),
};

const ElementCode& elementCodeOf(const std::string& descriptor) {
  const bool hasOrder =
      !descriptor.empty() && std::string_view("<>=|").find(descriptor[0]) != std::string_view::npos;
  for (const ElementCode& row : elementCodes) {
    if (hasOrder && std::string_view(descriptor).substr(1) == row.code) return row;
  }
  throw ReadError("elements of type " + inQuotes(descriptor) + " aren't supported");
}

/// The product of some lengths, as large as can be when it is larger than that.
std::uint64_t product(std::span<const std::uint64_t> lengths) {
  std::uint64_t result = 1;
  for (const std::uint64_t length : lengths) {
    if (length == 0) return 0;
    const bool overflows = result > std::numeric_limits<std::uint64_t>::max() / length;
    result = overflows ? std::numeric_limits<std::uint64_t>::max() : result * length;
  }
  return result;
}

void checkSize(const NpyHeader& header, std::uint64_t elementSize, std::uint64_t available) {
  const std::span<const std::uint64_t> shape = header.shape;
  const std::uint64_t count = product(shape);
  if (count > available / elementSize) {
    throw ReadError("the file is cut short: its elements take more than the " +
                    std::to_string(available) + " bytes behind the header");
  }
  if (const std::uint64_t surplus = available - count * elementSize; surplus != 0) {
    throw ReadError("the file is " + std::to_string(surplus) + (surplus == 1 ? " byte" : " bytes") +
                    " longer than its header says");
  }
  // The rows above the first empty dimension, or all rows.
  const auto firstEmpty = std::find(shape.begin(), shape.end(), 0U);
  const std::uint64_t rows =
      product(shape.first(static_cast<std::size_t>(firstEmpty - shape.begin())));
  if (count == 0 && rows > mostEmptyRows)
    throw ReadError("the shape has more than " + std::to_string(mostEmptyRows) + " empty rows");
}

/// What makes rows of vectors along the last dimension.
MakeRows vectorRowMaker(const ElementCode& code, const NpyHeader& header) {
  const std::uint64_t length = header.shape.back();
  if (code.makeVectorRows[0] == nullptr) {
    throw ReadError("elements of type " + inQuotes(header.descriptor) +
                    " make no vectors; floats do");
  }
  if (header.shape.size() < 2 || length < 2 || length > 4)
    throw ReadError("vectors want a last dimension of 2 to 4 behind another one");
  return code.makeVectorRows[length - 2];
}

}  // namespace

std::string describe(const NpyFacts& facts) {
  std::string text = facts.elements;
  const char* separator = ", ";
  for (const std::uint64_t length : facts.shape) {
    text += separator + std::to_string(length);
    separator = " × ";
  }
  return facts.widenedTo.empty() ? text : text + ", widened to " + facts.widenedTo;
}

NpyArray parseNpy(ByteSource& file, NpyForm form) {
  const NpyHeader header = parseNpyHeader(file);
  const ElementCode& code = elementCodeOf(header.descriptor);
  if (header.shape.empty() || header.shape.size() > 3) {
    throw ReadError("the array has " + std::to_string(header.shape.size()) +
                    " dimensions; 1 to 3 are supported");
  }
  const bool widened = code.alwaysWidened || (form.widened && code.kept.name != code.widened.name);
  const NumberType& number = widened ? code.widened : code.kept;
  const MakeRows make = form.vectors ? vectorRowMaker(code, header) : number.makeRows;
  checkSize(header, code.size, file.remaining());
  const char order = header.descriptor[0];
  const bool swapped = order == (std::endian::native == std::endian::little ? '>' : '<');
  NpyLayout layout{header.shape, 1, header.fortranOrder};
  if (form.vectors) {
    layout.components = header.shape.back();
    layout.shape.pop_back();
  }
  const NpyRows rows = make(layout.shape);
  NpyNumbers numbers(file, swapped);
  number.fillRows(rows.memory, layout, numbers);
  const std::string_view widenedTo = widened ? number.name : "";
  return {rows.value, {std::string(code.name), header.shape, std::string(widenedTo)}};
}

}  // namespace vtlcmd::runner
