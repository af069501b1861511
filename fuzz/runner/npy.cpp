#include "readers/npy.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "readers/npy_header.h"
#include "readers/read_error.h"
#include "requirement.h"
#include "saving/npy_writer.h"
#include "target.h"
#include "values/value_type.h"

namespace {

using namespace vtlcmd::runner;
using vtlcmd::fuzz::require;
using vtlcmd::fuzz::requireEqual;

std::span<const unsigned char> bytesOf(const std::string& text) {
  return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

std::string written(const Orvel::Value& value) {
  std::ostringstream stream;
  writeNpy(stream, parseValueType(value.getType().getFullyQualifiedName().c_str()), value);
  return stream.str();
}

struct Parts {
  NpyHeader header;
  /// The bytes behind it.
  std::string elements;
};

Parts partsOf(const std::string& file) {
  MemorySource source(bytesOf(file));
  NpyHeader header = parseNpyHeader(source);
  return {std::move(header), file.substr(file.size() - source.remaining())};
}

/// Without what a value can't know: the lengths in rows that aren't there.
std::vector<std::uint64_t> shapeOf(const Parts& parts) {
  std::vector<std::uint64_t> shape = parts.header.shape;
  const auto empty = std::find(shape.begin(), shape.end(), 0U);
  if (empty != shape.end()) shape.erase(empty + 1, shape.end());
  return shape;
}

/// Whether the writer would have written the elements as they stand in the file.
bool isWriterForm(const NpyHeader& header) {
  const bool isHalf = header.descriptor.ends_with("f2");
  // Any byte but 0 reads as true.
  const bool isBool = header.descriptor.ends_with("b1");
  return !header.fortranOrder && header.descriptor[0] != '>' && !isHalf && !isBool;
}

/// Up to a million rows may be without elements; under the sanitizers half of them already take
/// longer than a fuzzer waits.
bool hasManyEmptyRows(const std::vector<std::uint64_t>& shape) {
  constexpr std::uint64_t many = 10'000;
  std::uint64_t rows = 1;
  for (const std::uint64_t length : shape) {
    if (length == 0) return rows == many;
    rows = std::min(rows * std::min(length, many), many);
  }
  return false;
}

}  // namespace

/// The first byte chooses the form, the others are a file. What is read is written with the same
/// elements, and that is read again with the same bytes; else the file is refused.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const NpyForm form{(data[0] & 1U) != 0, (data[0] & 2U) != 0};
  const std::string file = vtlcmd::fuzz::textOf(data + 1, size - 1);
  try {
    const Parts before = partsOf(file);
    if (hasManyEmptyRows(before.header.shape)) return 0;
    MemorySource source(bytesOf(file));
    const NpyArray array = parseNpy(source, form);
    require(source.remaining() == 0, "a file is read to its end");
    const std::string again = written(array.value);
    const Parts after = partsOf(again);
    require(shapeOf(after) == shapeOf(before), "an array keeps its shape");
    if (isWriterForm(before.header) && array.facts.widenedTo.empty()) {
      require(after.elements == before.elements, "elements keep their bytes");
      requireEqual("the type", after.header.descriptor.substr(1),
                   before.header.descriptor.substr(1));
    }
    MemorySource source2(bytesOf(again));
    require(written(parseNpy(source2, form).value) == again, "what is written is read again");
  } catch (const ReadError&) {
    // Refused, in words.
  }
  return 0;
}
