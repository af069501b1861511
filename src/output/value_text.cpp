#include "output/value_text.h"

#include <array>

namespace vtlcmd {
namespace {

struct MemberWriter {
  const char* typeName;
  void (*write)(std::ostream& stream, const Orvel::Value& member);
};

constexpr std::array<MemberWriter, 3> memberWriters{{
    {"float", [](std::ostream& stream, const Orvel::Value& v) { stream << v.getFloat(); }},
    {"double", [](std::ostream& stream, const Orvel::Value& v) { stream << v.getDouble(); }},
    {"int", [](std::ostream& stream, const Orvel::Value& v) { stream << v.getInt(); }},
}};

}  // namespace

std::string structValueToText(const Orvel::Value& value) {
  const Orvel::StructValue structValue(value);
  const Orvel::StructType type = structValue.getType();
  const auto end = type.end();
  std::ostringstream stream;
  stream << "{";
  for (auto position = type.begin(); position != end;) {
    const Orvel::StructValue::Member member = structValue[position->getName()];
    const Orvel::String typeName = member.getType().getFullyQualifiedName();
    position++;
    const char* separator = position != end ? ", " : "";
    for (const MemberWriter& writer : memberWriters) {
      if (!(typeName == writer.typeName)) continue;
      writer.write(stream, member);
      stream << separator;
      break;
    }
  }
  stream << "}";
  return stream.str();
}

}  // namespace vtlcmd
