#include "readers/data_writer.h"

#include <array>
#include <ostream>
#include <type_traits>
#include <vector>

#include "readers/npy_header.h"

namespace vtlcmd::runner {
namespace {

template <typename T>
std::span<const unsigned char> bytesOf(const std::vector<T>& elements) {
  return {reinterpret_cast<const unsigned char*>(elements.data()), elements.size() * sizeof(T)};
}

}  // namespace

void DataWriter::writeNumber(std::uint64_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) stream_.put(static_cast<char>(number >> (8 * i) & 0xFFU));
}

void DataWriter::begin(DataMessage kind, std::string_view name, std::uint64_t payloadSize) {
  name = name.substr(0, longestMessageName);
  stream_.put(static_cast<char>(kind));
  writeNumber(name.size(), 4);
  stream_ << name;
  writeNumber(payloadSize, 8);
}

void DataWriter::writeComponent(std::string_view name, std::uint64_t count) {
  begin(DataMessage::component, name, 4);
  writeNumber(count, 4);
}

void DataWriter::writeArray(DataMessage kind, std::string_view name, std::string_view descriptor,
                            std::span<const std::uint64_t> shape,
                            std::span<const unsigned char> elements) {
  const std::string header = npyHeader(descriptor, shape);
  begin(kind, name, header.size() + elements.size());
  stream_ << header;
  writeBytes(elements);
}

void DataWriter::writeArrayFile(std::string_view name, std::span<const unsigned char> file) {
  begin(DataMessage::array, name, file.size());
  writeBytes(file);
}

void DataWriter::writeBytes(std::span<const unsigned char> bytes) {
  stream_.write(reinterpret_cast<const char*>(bytes.data()),
                static_cast<std::streamsize>(bytes.size()));
}

void DataWriter::writeMesh(const MeshData& mesh) {
  const std::uint64_t points = mesh.positions.size();
  const std::uint64_t faces = mesh.faceSizes.size();
  const std::uint64_t corners = mesh.cornerPoints.size();
  const std::uint64_t vertices = faces > 0 ? corners : points;
  writeComponent("points", points);
  writeComponent("faces", faces);
  writeComponent("corners", corners);
  const auto writeVectors = [&](std::string_view name, const auto& elements,
                                std::uint64_t expected) {
    using Element = typename std::remove_cvref_t<decltype(elements)>::value_type;
    if (elements.empty()) return;
    if (elements.size() != expected) {
      return writeWarning("left out: the " + std::string(name) + ", which only " +
                          std::to_string(elements.size()) + " of " + std::to_string(expected) +
                          (faces > 0 ? " corners" : " points") + " have");
    }
    const std::array<std::uint64_t, 2> shape{expected, Element::componentCount};
    writeArray(DataMessage::vectors, name, "f4", shape, bytesOf(elements));
  };
  const auto writeNumbers = [&](std::string_view name, const std::vector<std::int32_t>& numbers) {
    const std::array<std::uint64_t, 1> shape{numbers.size()};
    if (!numbers.empty()) writeArray(DataMessage::numbers, name, "i4", shape, bytesOf(numbers));
  };
  writeVectors("position", mesh.positions, points);
  writeNumbers("face_size", mesh.faceSizes);
  writeNumbers("corner_point", mesh.cornerPoints);
  writeVectors("normal", mesh.normals, vertices);
  writeVectors("uv", mesh.uvs, vertices);
  writeVectors("color", mesh.colors, vertices);
  if (!mesh.leftOut.empty()) writeWarning("left out: " + mesh.leftOut);
}

void DataWriter::writeWarning(std::string_view text) { begin(DataMessage::warning, text, 0); }

void DataWriter::writeError(std::string_view reason) { begin(DataMessage::error, reason, 0); }

void DataWriter::writeEnd() { begin(DataMessage::end, "", 0); }

}  // namespace vtlcmd::runner
