#include "workers/fields.h"

#include <bit>

namespace vtlcmd::runner {
namespace {

constexpr std::size_t numberSize = 8;

void appendNumber(std::string& bytes, std::uint64_t value) {
  for (std::size_t i = 0; i < numberSize; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
}

std::uint64_t numberIn(std::string_view bytes) {
  std::uint64_t value = 0;
  for (std::size_t i = numberSize; i > 0; --i)
    value = value << 8U | static_cast<unsigned char>(bytes[i - 1]);
  return value;
}

}  // namespace

void FieldWriter::number(std::uint64_t value) { appendNumber(fields_, value); }

void FieldWriter::real(double value) { number(std::bit_cast<std::uint64_t>(value)); }

void FieldWriter::text(std::string_view value) {
  number(value.size());
  fields_ += value;
}

void FieldWriter::texts(const std::vector<std::string>& values) {
  number(values.size());
  for (const std::string& value : values) text(value);
}

std::string FieldWriter::message() const {
  std::string bytes;
  bytes.reserve(numberSize + fields_.size());
  appendNumber(bytes, fields_.size());
  return bytes += fields_;
}

std::uint64_t FieldReader::number() { return numberIn(take(numberSize)); }

double FieldReader::real() { return std::bit_cast<double>(number()); }

std::string FieldReader::text() { return std::string(take(number())); }

std::vector<std::string> FieldReader::texts() {
  std::vector<std::string> values;
  for (std::uint64_t left = number(); left > 0; --left) values.push_back(text());
  return values;
}

std::string_view FieldReader::take(std::uint64_t size) {
  if (size > rest_.size()) throw MessageError();
  const std::string_view field = rest_.substr(0, static_cast<std::size_t>(size));
  rest_.remove_prefix(field.size());
  return field;
}

std::optional<std::string_view> MessageBuffer::next() {
  const std::string_view rest = std::string_view(bytes_).substr(begin_);
  if (rest.size() >= numberSize) {
    const std::uint64_t size = numberIn(rest);
    if (size <= rest.size() - numberSize) {
      begin_ += numberSize + static_cast<std::size_t>(size);
      return rest.substr(numberSize, static_cast<std::size_t>(size));
    }
  }
  bytes_.erase(0, begin_);
  begin_ = 0;
  return std::nullopt;
}

}  // namespace vtlcmd::runner
