#pragma once

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string_view>

#include "readers/data_message.h"
#include "readers/mesh_data.h"

namespace vtlcmd::runner {

/// Sends what is in a file as messages.
class DataWriter {
 public:
  /// The stream must outlive the writer.
  explicit DataWriter(std::ostream& stream) : stream_(stream) {}

  void writeMesh(const MeshData& mesh);

  /// A value in the bytes of an array file, which the receiver checks.
  void writeArrayFile(std::string_view name, std::span<const unsigned char> file);

  /// An array of `shape`, whose elements have the type that the descriptor without its order names.
  void writeArray(DataMessage kind, std::string_view name, std::string_view descriptor,
                  std::span<const std::uint64_t> shape, std::span<const unsigned char> elements);

  /// What is left out of the mesh, in words for the user.
  void writeWarning(std::string_view text);
  void writeError(std::string_view reason);
  void writeEnd();

 private:
  void writeNumber(std::uint64_t number, int bytes);
  void begin(DataMessage kind, std::string_view name, std::uint64_t payloadSize);
  void writeBytes(std::span<const unsigned char> bytes);
  void writeComponent(std::string_view name, std::uint64_t count);

  std::ostream& stream_;
};

}  // namespace vtlcmd::runner
