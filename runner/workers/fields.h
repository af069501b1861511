#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// What the program and its worker processes send each other: messages of fields. A message is its
/// length and its fields; a field is a number in eight bytes, the lowest first, or a text behind
/// its length.

namespace vtlcmd::runner {

/// Bytes that are no message.
class MessageError : public std::runtime_error {
 public:
  MessageError() : std::runtime_error("a message between processes makes no sense") {}
};

class FieldWriter {
 public:
  void number(std::uint64_t value);
  void real(double value);
  void text(std::string_view value);
  void texts(const std::vector<std::string>& values);

  /// The message, whole.
  std::string message() const;

 private:
  std::string fields_;
};

/// All throw MessageError when the next field isn't there.
class FieldReader {
 public:
  /// The fields must outlive the reader.
  explicit FieldReader(std::string_view fields) : rest_(fields) {}

  std::uint64_t number();
  double real();
  std::string text();
  std::vector<std::string> texts();

 private:
  std::string_view take(std::uint64_t size);

  std::string_view rest_;
};

/// Cuts the messages out of bytes as they come.
class MessageBuffer {
 public:
  void append(std::string_view bytes) { bytes_ += bytes; }

  /// The fields of the next message, valid until the next call; nothing while it isn't whole.
  std::optional<std::string_view> next();

 private:
  std::string bytes_;
  /// The bytes before it were given out.
  std::size_t begin_ = 0;
};

}  // namespace vtlcmd::runner
