#pragma once

#include <cstddef>
#include <cstdint>

/// How a process that reads a file tells what is in it: in messages, each a kind in one byte, the
/// length of a name in four, the name, the length of the payload in eight, the payload. Numbers
/// have their lowest byte first.

namespace vtlcmd::runner {

enum class DataMessage : std::uint8_t {
  /// A component property of the mesh; the payload is its count, in four bytes.
  component = 1,
  /// A data property of the mesh; the payload is an array file.
  numbers,
  /// The same, whose last dimension is vectors.
  vectors,
  /// A value; the payload is an array file.
  array,
  /// Something of the mesh is left out; what stands for a name.
  warning,
  /// The file can't be read. The reason stands for a name.
  error,
  /// Nothing comes any more.
  end,
};

inline constexpr std::size_t longestMessageName = 1 << 16;

}  // namespace vtlcmd::runner
