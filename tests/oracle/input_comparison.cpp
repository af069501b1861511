#include "input_comparison.h"

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <optional>
#include <sstream>
#include <string_view>
#include <type_traits>

#include "text_model.h"
#include "vtlcmd/host/any.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/input/from_string.h"
#include "vtlcmd/input/number_parsing.h"
#include "vtlcmd/input/set_from_string.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/stand_in/make_string.h"

namespace vtlcmd::oracle {
namespace {

const std::string prefix = "Input port 'p' (t): ";

template <typename T>
constexpr bool isVector = false;
template <typename Component, std::size_t Count>
constexpr bool isVector<Math::Vector<Component, Count>> = true;

/// What the model says of a text for any registered type.
template <typename T>
TextAnswer<T> expectedAnswer(const std::string& text) {
  if constexpr (std::same_as<T, Orvel::String>) {
    return {Orvel::makeString({text.data(), text.size()}), {}};
  } else if constexpr (std::same_as<T, ObjectPtr>) {
    return {std::nullopt, {prefix + "UNSUPPORTED: setFromString() for Object"}};
  } else if constexpr (isVector<T>) {
    using Component = typename T::ComponentType;
    const auto model = vectorModel<Component>(text, T::componentCount, valueType<T>().name, prefix);
    if (!model.value) return {std::nullopt, model.messages};
    T vector;
    std::copy(model.value->begin(), model.value->end(), vector.components.begin());
    return {vector, {}};
  } else {
    return scalarModel<T>(text, prefix);
  }
}

template <typename T>
bool sameBits(const T& a, const T& b) {
  if constexpr (std::is_trivially_copyable_v<T>) {
    using Bytes = std::array<std::byte, sizeof(T)>;
    return std::bit_cast<Bytes>(a) == std::bit_cast<Bytes>(b);
  } else if constexpr (std::same_as<T, ObjectPtr>) {
    return a.get() == b.get();
  } else {
    return a == b;
  }
}

template <typename T>
void writeValue(std::ostream& out, const T& value) {
  if constexpr (isVector<T>) {
    for (const auto component : value.components) out << component << ' ';
  } else if constexpr (std::same_as<T, Orvel::String>) {
    out << '"' << value.c_str() << '"';
  } else if constexpr (std::same_as<T, ObjectPtr>) {
    out << "an object";
  } else {
    out << value;
  }
}

template <typename T>
std::string described(const std::optional<T>& value, std::string_view rest) {
  std::ostringstream out;
  out.precision(17);
  if (value) {
    writeValue(out, *value);
  } else {
    out << "no value";
  }
  out << rest << '\n';
  return out.str();
}

std::string escaped(std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string result;
  for (const char byte : text) {
    if (byte >= ' ' && byte <= '~' && byte != '\\') {
      result += byte;
    } else {
      const auto code = static_cast<unsigned char>(byte);
      result += {'\\', 'x', digits[code / 16U], digits[code % 16U]};
    }
  }
  return result;
}

/// One text on its way through all operations, up to the first difference.
class Comparison {
 public:
  explicit Comparison(const std::string& text)
      : text_(text), portText_(Orvel::makeString({text.data(), text.size()})) {}

  template <typename T>
  void compareAll() {
    if constexpr (Number<T>) compareParseNumber<T>();
    const TextAnswer<T> expected = expectedAnswer<T>(text_);
    if constexpr (Scalar<T>) compareFromString<T>(expected);
    compareSetFromString<T>(expected);
  }

  const std::string& difference() const { return difference_; }

 private:
  template <typename T>
  void compareParseNumber() {
    const Parsed<T> expected = parseModel<T>(upToNul(text_));
    // A status that no parser gives, to see that it is set.
    auto status = static_cast<ParseStatus>(-1);
    const std::optional<T> value = parseNumber<T>(portText_.c_str(), status);
    if (static_cast<int>(status) == static_cast<int>(expected.outcome) &&
        same(value, expected.value)) {
      return;
    }
    note<T>(
        "parseNumber",
        described(expected.value, ", status " + std::to_string(static_cast<int>(expected.outcome))),
        described(value, ", status " + std::to_string(static_cast<int>(status))));
  }

  template <typename T>
  void compareFromString(const TextAnswer<T>& expected) {
    VtlCmdLogger logger(0);
    compareAnswers("fromString", expected, fromString<T>(portText_, &logger, prefix), logger);
  }

  template <typename T>
  void compareSetFromString(const TextAnswer<T>& expected) {
    VtlCmdLogger logger(0);
    Any value = makeAny(Orvel::String("what was there before"));
    setFromString<T>(value, portText_, &logger, prefix);
    const T* held = anyCast<T>(&value);
    if (held == nullptr && value.holdsValue()) {
      note<T>("setFromString", described(expected.value, ""), "a value of another type\n");
      return;
    }
    compareAnswers("setFromString", expected,
                   held == nullptr ? std::nullopt : std::optional<T>(*held), logger);
  }

  template <typename T>
  void compareAnswers(std::string_view operation, const TextAnswer<T>& expected,
                      const std::optional<T>& value, const VtlCmdLogger& logger) {
    std::string expectedMessages;
    for (const std::string& message : expected.messages) expectedMessages += "\n0 2 " + message;
    std::string messages;
    for (const LogMessage& message : logger.messages) {
      messages += '\n' + std::to_string(message.source) + ' ' + std::to_string(message.level) +
                  ' ' + message.text;
    }
    if (same(value, expected.value) && messages == expectedMessages) return;
    note<T>(operation, described(expected.value, expectedMessages), described(value, messages));
  }

  template <typename T>
  static bool same(const std::optional<T>& a, const std::optional<T>& b) {
    return a && b ? sameBits(*a, *b) : a.has_value() == b.has_value();
  }

  template <typename T>
  void note(std::string_view operation, const std::string& expected, const std::string& got) {
    if (!difference_.empty()) return;
    difference_ = std::string(operation) + '<' + valueType<T>().name + "> of '" + escaped(text_) +
                  "'\nexpected: " + expected + "got:      " + got;
  }

  const std::string& text_;
  Orvel::String portText_;
  std::string difference_;
};

}  // namespace

std::string firstDifference(const std::string& text) {
  Comparison comparison(text);
  forEachRow(registeredTypes,
             [&]<typename T>(const RegisteredType<T>&) { comparison.compareAll<T>(); });
  return comparison.difference();
}

}  // namespace vtlcmd::oracle
