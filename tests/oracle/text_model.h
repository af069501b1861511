#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "parse_model.h"

namespace vtlcmd::oracle {

/// What comes of a port's text: a value, or messages that say why not.
template <typename Value>
struct TextAnswer {
  std::optional<Value> value;
  std::vector<std::string> messages;
};

/// A text as a terminated string shows it.
inline std::string_view upToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

/// For the six number types and bool. Numbers are read up to the first NUL byte; a bool's word is
/// the whole text.
template <typename T>
TextAnswer<T> scalarModel(std::string_view text, std::string_view prefix);

/// For vectors of float or double; `typeName` stands in the message about a wrong count.
template <typename Component>
TextAnswer<std::vector<Component>> vectorModel(std::string_view text, std::size_t componentCount,
                                               std::string_view typeName, std::string_view prefix);

}  // namespace vtlcmd::oracle
