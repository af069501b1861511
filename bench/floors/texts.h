#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"

/// The cheapest way to the texts that the plug-in writes: pieces in one buffer, or one string of
/// exactly the size needed.

namespace vtlcmd::bench {

inline std::string concatenate(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view piece : pieces) text.append(piece);
  return text;
}

/// Room for the text of any vector: four numbers of at most 13 characters.
class ShortText {
 public:
  void append(std::string_view text) { size_ += text.copy(end(), text.size()); }
  void append(std::integral auto number) { endAt(std::to_chars(end(), last(), number)); }
  void append(std::floating_point auto number) {
    endAt(std::to_chars(end(), last(), number, std::chars_format::general, 6));
  }
  operator std::string_view() const { return {buffer_.data(), size_}; }

 private:
  char* end() { return buffer_.data() + size_; }
  char* last() { return buffer_.data() + buffer_.size(); }
  void endAt(std::to_chars_result result) {
    size_ = static_cast<std::size_t>(result.ptr - buffer_.data());
  }

  std::array<char, 96> buffer_;
  std::size_t size_ = 0;
};

/// Asks the libraries what a report asks for; the objects measured have no properties.
inline std::string objectText(const Vantrel::Object& object) {
  namespace Geometry = Vantrel::Geometry;
  std::string text = "{\n";
  const auto components = Geometry::getComponentGeoPropPrototype();
  Orvel::Array<Orvel::String> names = Geometry::getGeoPropNamesByPrototype(object, *components);
  for (const Orvel::String& name : names) text.append(name.c_str());
  const auto data = Geometry::getDataGeoPropPrototype(Geometry::sGenericDataGeoProp);
  names = Geometry::getGeoPropNamesByPrototype(object, *data);
  for (const Orvel::String& name : names) text.append(name.c_str());
  return text.append("}");
}

/// The text of a value, convertible to a view.
template <Registered T>
auto valueText(const T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    return std::string_view(value ? "true" : "false");
  } else if constexpr (std::is_same_v<T, ObjectPtr>) {
    return objectText(*value);
  } else if constexpr (std::is_same_v<T, Orvel::String>) {
    return concatenate({"\"", value.c_str(), "\""});
  } else if constexpr (std::is_arithmetic_v<T>) {
    ShortText text;
    text.append(value);
    return text;
  } else {
    ShortText text;
    std::string_view separator = "{";
    for (const auto component : value.components) {
      text.append(separator);
      text.append(component);
      separator = ", ";
    }
    text.append(std::string_view("}"));
    return text;
  }
}

}  // namespace vtlcmd::bench
