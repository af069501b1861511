#include "nodes/families.h"
#include "nodes/number_text.h"
#include "nodes/operand.h"
#include "text/library_text.h"

namespace vtlcmd::runner::node_families {
namespace {

Orvel::Value text(const NodeCall& call) {
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (std::is_arithmetic_v<T>) {
      const Operand<T> values(call[0], call.types[0].depth > 0);
      return singleOrArray<Orvel::String>(
          values.size(), [&](std::uint64_t i) { return libraryText(numberText(values[i])); });
    } else {
      throw NodeError("no text of " + call.types[0].element);
    }
  });
}

ValueType numberType(const NodeTypes& types) {
  const ValueType& declared = *types.declared;
  bool isNumber = false;
  withTypeNamed(registeredTypes, declared.element,
                [&]<typename T>() { isNumber = std::is_arithmetic_v<T>; });
  if (isNumber && declared.depth == types[0].depth) return declared;
  throw std::invalid_argument(nameOf(types[0]) + " doesn't read as " + nameOf(declared));
}

Orvel::Value number(const NodeCall& call) {
  return evaluateAs(call.resultType.element, [&]<typename T>() -> Orvel::Value {
    if constexpr (std::is_arithmetic_v<T>) {
      const Operand<Orvel::String> texts(call[0], call.types[0].depth > 0);
      return singleOrArray<T>(texts.size(), [&](std::uint64_t i) {
        try {
          return readNumber<T>(standardText(texts[i]), call.resultType.element);
        } catch (const NodeError& error) {
          if (!texts.size()) throw;
          throw NodeError("at the index " + std::to_string(i) + " " + error.what());
        }
      });
    } else {
      throw NodeError("no number is a " + call.resultType.element);
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

ValueType textType(const NodeTypes& types) {
  return {valueType<Orvel::String>().name, types[0].depth};
}

const NodeOperation textOperations[] = {
    {"text",
     {{"value", &type_classes::scalars}},
     NodeSetting::none,
     textType,
     text,
     "The shortest text that reads back as the number, or 'true' or 'false', by element."},
    {"number",
     {{"text", &type_classes::texts}},
     NodeSetting::type,
     numberType,
     number,
     "The number that the whole text is, by element: decimal, 'inf' or 'nan', without plus sign "
     "and spaces; a bool is 'true' or 'false'."},
    {"join",
     {{"parts", &type_classes::text, true}, {"separator", &type_classes::text}},
     NodeSetting::none,
     textType,
     join,
     "The parts in order, with the separator between them."},
};

}  // namespace

std::span<const NodeOperation> texts() { return textOperations; }

}  // namespace vtlcmd::runner::node_families
