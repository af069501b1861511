#include "vtlcmd/output/value_text.h"

#include <array>
#include <cstdint>

namespace vtlcmd {
namespace {

struct MemberWriter {
  const char* typeName;
  void (*write)(TextBuilder& text, const Orvel::Value& member);
};

constexpr std::array<MemberWriter, 3> memberWriters{{
    {valueType<float>().name,
     [](TextBuilder& text, const Orvel::Value& member) { text << member.getFloat(); }},
    {valueType<double>().name,
     [](TextBuilder& text, const Orvel::Value& member) { text << member.getDouble(); }},
    {valueType<std::int32_t>().name,
     [](TextBuilder& text, const Orvel::Value& member) { text << member.getInt(); }},
}};

}  // namespace

void structValueToText(TextBuilder& text, const Orvel::Value& value) {
  const Orvel::StructValue structValue(value);
  const Orvel::StructType type = structValue.getType();
  const auto end = type.end();
  text << "{";
  for (auto position = type.begin(); position != end;) {
    const Orvel::StructValue::Member member = structValue[position->getName()];
    const Orvel::String typeName = member.getType().getFullyQualifiedName();
    position++;
    const char* separator = position != end ? ", " : "";
    for (const MemberWriter& writer : memberWriters) {
      if (!(typeName == writer.typeName)) continue;
      writer.write(text, member);
      text << separator;
      break;
    }
  }
  text << "}";
}

}  // namespace vtlcmd
