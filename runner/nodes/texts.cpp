#include <charconv>

#include "nodes/families.h"
#include "nodes/operand.h"
#include "text/library_text.h"

namespace vtlcmd::runner::node_families {
namespace {

template <typename T>
std::string textOf(T value) {
  if constexpr (std::is_same_v<T, bool>) {
    return value ? "true" : "false";
  } else {
    // Long enough for the shortest text of any double.
    char text[32];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, value);
    return {text, end.ptr};
  }
}

Orvel::Value text(const NodeCall& call) {
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (std::is_arithmetic_v<T>) {
      return Orvel::makeValue(libraryText(textOf(Orvel::valueAs<T>(call[0]))));
    } else {
      throw NodeError("no text of " + call.types[0].element);
    }
  });
}

Orvel::Value join(const NodeCall& call) {
  const std::string separator = standardText(call[1].getString());
  std::string joined;
  for (const Orvel::Value& part : call.arguments[0]) {
    if (&part != &call.arguments[0].front()) joined += separator;
    joined += standardText(part.getString());
  }
  return Orvel::makeValue(libraryText(joined));
}

ValueType stringType(const NodeTypes&) { return {valueType<Orvel::String>().name, 0}; }

const NodeOperation table[] = {
    {"text",
     {{"value", &type_classes::scalar}},
     NodeSetting::none,
     stringType,
     text,
     "The shortest text that reads back as the number, or 'true' or 'false'."},
    {"join",
     {{"parts", &type_classes::text, true}, {"separator", &type_classes::text}},
     NodeSetting::none,
     stringType,
     join,
     "The parts in order, with the separator between them."},
};

}  // namespace

std::span<const NodeOperation> texts() { return table; }

}  // namespace vtlcmd::runner::node_families
