#include "readers/data_reply.h"

#include <algorithm>
#include <array>
#include <string>

#include "readers/data_message.h"
#include "readers/read_error.h"
#include "text/library_text.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/object_builder.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

[[noreturn]] void throwBroken() { throw ReadError("what its reader says makes no sense"); }

std::uint64_t readNumber(ByteSource& source, std::size_t size) {
  std::array<unsigned char, 8> bytes{};
  if (source.read(std::span(bytes).first(size)) < size) throwBroken();
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < size; ++i) number |= std::uint64_t{bytes[i]} << (8 * i);
  return number;
}

std::string readName(ByteSource& source) {
  const std::uint64_t length = readNumber(source, 4);
  if (length > longestMessageName) throwBroken();
  std::string name(length, '\0');
  if (source.read({reinterpret_cast<unsigned char*>(name.data()), name.size()}) < name.size())
    throwBroken();
  return name;
}

/// The payload of one message.
class Payload final : public ByteSource {
 public:
  Payload(ByteSource& source, std::uint64_t size) : source_(source), left_(size) {
    if (size > source.remaining())
      throw ReadError("it holds more than may be read (--read-memory)", true);
  }

  std::size_t read(std::span<unsigned char> bytes) override {
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), left_));
    const std::size_t count = source_.read(bytes.first(wanted));
    left_ -= count;
    return count;
  }

  std::uint64_t remaining() const override { return left_; }

 private:
  ByteSource& source_;
  std::uint64_t left_;
};

NpyArray parseArray(const std::string& name, ByteSource& payload, NpyForm form) {
  try {
    return parseNpy(payload, form);
  } catch (const ReadError& error) {
    throw ReadError(name.empty() ? error.what() : inQuotes(name) + " in it: " + error.what(),
                    error.isTransient());
  }
}

}  // namespace

std::vector<DataValue> parseReply(ByteSource& messages, NpyForm form) {
  std::vector<DataValue> values;
  Orvel::MutablePtr<Vantrel::Object> mesh = Vantrel::createObject();
  bool hasMesh = false;
  std::vector<std::string> warnings;
  for (;;) {
    const auto kind = static_cast<DataMessage>(readNumber(messages, 1));
    const std::string name = readName(messages);
    Payload payload(messages, readNumber(messages, 8));
    switch (kind) {
      case DataMessage::component: {
        const std::uint64_t count = readNumber(payload, 4);
        Vantrel::Geometry::setComponentProperty(*mesh, viewOf(name),
                                                static_cast<std::uint32_t>(count));
        hasMesh = true;
        break;
      }
      case DataMessage::numbers:
      case DataMessage::vectors: {
        const NpyArray array = parseNpy(payload, {.vectors = kind == DataMessage::vectors});
        Vantrel::Geometry::setDataProperty(*mesh, viewOf(name), Orvel::toAny(array.value));
        break;
      }
      case DataMessage::array: {
        NpyArray array = parseArray(name, payload, form);
        values.push_back({name, array.value, std::move(array.facts), {}});
        break;
      }
      case DataMessage::warning:
        warnings.push_back(name);
        break;
      case DataMessage::error:
        throw ReadError(name);
      case DataMessage::end:
        if (hasMesh)
          values.push_back({"", Orvel::makeValue(ObjectPtr(std::move(mesh))), std::nullopt, {}});
        if (values.empty()) throwBroken();
        values.back().warnings = std::move(warnings);
        return values;
      default:
        throwBroken();
    }
    if (payload.remaining() != 0) throwBroken();
  }
}

}  // namespace vtlcmd::runner
