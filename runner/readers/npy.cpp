#include "readers/npy.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <string_view>
#include <system_error>

#include "host/value_types.h"
#include "readers/mapped_file.h"
#include "readers/npy_header.h"
#include "readers/read_error.h"
#include "text/library_text.h"
#include "values/library_array.h"

namespace vtlcmd {
namespace {

/// Without elements the file's size says nothing about the rows; so many of them are still sane.
constexpr std::uint64_t mostEmptyRows = 1'000'000;

/// The elements of a file, addressed by their place along each dimension.
struct Elements {
  const unsigned char* data;
  bool swapped;
  std::vector<std::uint64_t> shape;
  /// By dimension, in elements.
  std::vector<std::uint64_t> strides;
};

template <typename T>
T load(const Elements& elements, std::uint64_t index) {
  const unsigned char* source = elements.data + index * sizeof(T);
  if constexpr (std::is_same_v<T, bool>) {
    return *source != 0;
  } else {
    std::array<unsigned char, sizeof(T)> bytes;
    std::memcpy(bytes.data(), source, sizeof(T));
    if (elements.swapped) std::reverse(bytes.begin(), bytes.end());
    return std::bit_cast<T>(bytes);
  }
}

template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> build(const Elements& elements, std::uint64_t offset) {
  const std::size_t dimension = elements.shape.size() - Rank;
  return shareArray(
      generateArray<StoredArray<T, Rank - 1>>(elements.shape[dimension], [&](std::uint64_t i) {
        const std::uint64_t index = offset + i * elements.strides[dimension];
        if constexpr (Rank == 1) {
          return load<T>(elements, index);
        } else {
          return build<T, Rank - 1>(elements, index);
        }
      }));
}

template <typename T>
Orvel::Value buildValue(const Elements& elements) {
  switch (elements.shape.size()) {
    case 1:
      return Orvel::makeValue(build<T, 1>(elements, 0));
    case 2:
      return Orvel::makeValue(build<T, 2>(elements, 0));
    default:
      return Orvel::makeValue(build<T, 3>(elements, 0));
  }
}

struct ElementCode {
  std::string_view code;
  std::uint64_t size;
  Orvel::Value (*build)(const Elements&);
};

template <typename T>
constexpr ElementCode elementCode(std::string_view code) {
  return {code, sizeof(T), buildValue<T>};
}

constexpr std::array elementCodes{
    elementCode<bool>("b1"),          elementCode<std::int8_t>("i1"),
    elementCode<std::uint8_t>("u1"),  elementCode<std::int16_t>("i2"),
    elementCode<std::uint16_t>("u2"), elementCode<std::int32_t>("i4"),
    elementCode<std::uint32_t>("u4"), elementCode<std::int64_t>("i8"),
    elementCode<std::uint64_t>("u8"), elementCode<float>("f4"),
    elementCode<double>("f8"),
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
  // The rows above the first empty dimension, or all rows.
  const auto firstEmpty = std::find(shape.begin(), shape.end(), 0U);
  const std::uint64_t rows =
      product(shape.first(static_cast<std::size_t>(firstEmpty - shape.begin())));
  if (count == 0 && rows > mostEmptyRows)
    throw ReadError("the shape has more than " + std::to_string(mostEmptyRows) + " empty rows");
}

std::vector<std::uint64_t> stridesOf(const NpyHeader& header) {
  const std::size_t rank = header.shape.size();
  std::vector<std::uint64_t> strides(rank);
  std::uint64_t stride = 1;
  for (std::size_t i = 0; i < rank; ++i) {
    const std::size_t dimension = header.fortranOrder ? i : rank - 1 - i;
    strides[dimension] = stride;
    stride *= header.shape[dimension];
  }
  return strides;
}

}  // namespace

Orvel::Value parseNpy(std::span<const unsigned char> file) {
  const NpyHeader header = parseNpyHeader(file);
  const ElementCode& code = elementCodeOf(header.descriptor);
  if (header.shape.empty() || header.shape.size() > 3) {
    throw ReadError("the array has " + std::to_string(header.shape.size()) +
                    " dimensions; 1 to 3 are supported");
  }
  const std::span<const unsigned char> data = file.subspan(header.dataOffset);
  checkSize(header, code.size, data.size());
  const char order = header.descriptor[0];
  const bool swapped = order == (std::endian::native == std::endian::little ? '>' : '<');
  return code.build({data.data(), swapped, header.shape, stridesOf(header)});
}

Orvel::Value readNpy(const std::filesystem::path& file) {
  try {
    const MappedFile mapped(file);
    return parseNpy(mapped.bytes());
  } catch (const ReadError& error) {
    throw ReadError(file.string() + ": " + error.what());
  } catch (const std::system_error& error) {
    throw ReadError(file.string() + ": " + error.code().message());
  }
}

}  // namespace vtlcmd
