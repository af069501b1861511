#include "nodes/families.h"
#include "nodes/number_conversion.h"
#include "nodes/operand.h"

namespace vtlcmd::runner::node_families {
namespace {

/// Single values convert to single values, vectors to vectors of as many components.
template <typename To, typename From>
constexpr bool converts() {
  if constexpr (Composite<To> && Composite<From>) {
    return To::componentCount == From::componentCount;
  } else {
    return std::is_arithmetic_v<To> && std::is_arithmetic_v<From>;
  }
}

template <typename To, typename From>
Converted<To> convert(const From& value) {
  if constexpr (Composite<To>) {
    Converted<To> result;
    for (std::size_t i = 0; i < result.number.components.size(); ++i) {
      const auto component = convertNumber<typename To::ComponentType>(value.components[i]);
      result.number.components[i] = component.number;
      result.clamped |= component.clamped;
    }
    return result;
  } else {
    return convertNumber<To>(value);
  }
}

void warnOfClamped(const NodeCall& call, std::uint64_t clamped,
                   const std::optional<std::uint64_t>& size) {
  const std::string which =
      size ? std::to_string(clamped) + " of " + std::to_string(*size) + " values" : "the value";
  call.warn(which + " didn't fit into " + call.resultType.element +
            " and became the nearest that does");
}

template <typename To, typename From>
Orvel::Value convertValue(const NodeCall& call) {
  const Operand<From> source(call[0], call.types[0].depth > 0);
  std::uint64_t clamped = 0;
  Orvel::Value result = singleOrArray<To>(source.size(), [&](std::uint64_t i) {
    const Converted<To> converted = convert<To>(source[i]);
    clamped += converted.clamped ? 1 : 0;
    return converted.number;
  });
  if (clamped > 0) warnOfClamped(call, clamped, source.size());
  return result;
}

using Conversion = Orvel::Value (*)(const NodeCall&);

/// What converts elements of the one type to the other; null where nothing does.
Conversion conversionOf(const std::string& to, const std::string& from) {
  Conversion conversion = nullptr;
  withTypeNamed(registeredTypes, to, [&]<typename To>() {
    withTypeNamed(registeredTypes, from, [&]<typename From>() {
      if constexpr (converts<To, From>()) conversion = convertValue<To, From>;
    });
  });
  return conversion;
}

ValueType convertedType(const NodeTypes& types) {
  const ValueType& to = *types.declared;
  const bool exists = conversionOf(to.element, types[0].element) != nullptr;
  if (exists && to.depth == types[0].depth) return to;
  throw std::invalid_argument(nameOf(types[0]) + " doesn't convert to " + nameOf(to));
}

Orvel::Value evaluateConversion(const NodeCall& call) {
  return conversionOf(call.resultType.element, call.types[0].element)(call);
}

const NodeOperation conversionOperations[] = {
    {"convert",
     {{"value", &type_classes::convertible}},
     NodeSetting::type,
     convertedType,
     evaluateConversion,
     "The value as another type; what is out of range becomes the nearest value, with a warning."},
};

}  // namespace

std::span<const NodeOperation> conversions() { return conversionOperations; }

}  // namespace vtlcmd::runner::node_families
