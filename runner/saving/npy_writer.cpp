#include "saving/npy_writer.h"

#include <array>
#include <concepts>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/interrupt.h"
#include "readers/npy_header.h"
#include "values/level_sizes.h"
#include "values/type_dispatch.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

/// The format's own library takes no more.
constexpr std::size_t mostDimensions = 32;

/// What an element consists of, and the dimensions that it adds to those of its array.
template <typename T>
struct Components {
  using Number = T;
  static constexpr std::array<std::uint64_t, 0> shape{};
};
template <typename T, std::size_t Count>
struct Components<Math::Vector<T, Count>> {
  using Number = T;
  static constexpr std::array<std::uint64_t, 1> shape{Count};
};
template <typename T, std::size_t Rows, std::size_t Columns>
struct Components<Math::Matrix<T, Rows, Columns>> {
  using Number = T;
  static constexpr std::array<std::uint64_t, 2> shape{Rows, Columns};
};

template <typename T>
concept Numeric = std::is_arithmetic_v<typename Components<T>::Number>;

/// Like "f4".
template <typename Number>
std::string codeOf() {
  const char kind = std::same_as<Number, bool>       ? 'b'
                    : std::floating_point<Number>    ? 'f'
                    : std::unsigned_integral<Number> ? 'u'
                                                     : 'i';
  return kind + std::to_string(sizeof(Number));
}

/// Calls `function.operator()<T>()` with the stored type of an element that consists of numbers.
template <typename Function>
bool withNumeric(const std::string& element, Function&& function) {
  bool isNumeric = false;
  const auto tryType = [&]<typename T>() {
    if constexpr (Numeric<T>) {
      function.template operator()<T>();
      isNumeric = true;
    }
  };
  withTypeNamed(registeredTypes, element, tryType);
  withTypeNamed(reportOnlyTypes, element, tryType);
  return isNumeric;
}

std::vector<std::uint64_t> shapeOf(const ValueType& type, const Orvel::Value& value) {
  if (type.depth == 0) return {1};
  std::vector<std::uint64_t> shape;
  for (const LevelSize& level : levelSizes(value, type.depth)) {
    if (level.isRagged) {
      throw std::invalid_argument("the arrays at level " + std::to_string(shape.size() + 1) +
                                  " of it differ in size");
    }
    shape.push_back(level.size.value_or(0));
  }
  return shape;
}

template <typename T>
void writeElements(std::ostream& stream, const T* elements, std::uint64_t count) {
  stream.write(reinterpret_cast<const char*>(elements),
               static_cast<std::streamsize>(count * sizeof(T)));
}

template <typename T>
void writeRows(std::ostream& stream, std::uint32_t depth, const Orvel::Value& value) {
  if (depth == 0) return writeElements(stream, static_cast<const T*>(valueAddress(value)), 1);
  if (depth == 1) {
    const auto& row = *static_cast<const Orvel::Ptr<Orvel::Array<T>>*>(valueAddress(value));
    return writeElements(stream, row->data, row->size);
  }
  throwIfAbandoned();
  Orvel::ArrayValue rows(value);
  for (std::uint64_t i = 0; i < rows.size(); ++i)
    writeRows<T>(stream, depth - 1, rows.getElement(i));
}

}  // namespace

bool fitsNpy(const ValueType& type) {
  bool fits = false;
  withNumeric(type.element, [&]<typename T>() {
    fits = type.depth + Components<T>::shape.size() <= mostDimensions;
  });
  return fits;
}

void writeNpy(std::ostream& stream, const ValueType& type, const Orvel::Value& value) {
  std::vector<std::uint64_t> shape = shapeOf(type, value);
  withNumeric(type.element, [&]<typename T>() {
    using Number = typename Components<T>::Number;
    constexpr auto inner = Components<T>::shape;
    static_assert(std::is_trivially_copyable_v<T> && sizeof(T) % sizeof(Number) == 0);
    shape.insert(shape.end(), inner.begin(), inner.end());
    stream << npyHeader(codeOf<Number>(), shape);
    writeRows<T>(stream, type.depth, value);
  });
}

}  // namespace vtlcmd::runner
