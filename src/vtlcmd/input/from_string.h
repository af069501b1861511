#pragma once

#include <concepts>
#include <optional>
#include <string>

#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/input/number_parsing.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/text/joined.h"

namespace vtlcmd {

template <typename T>
concept Scalar = Number<T> || std::same_as<T, bool>;

/// What a message starts with: a text, or what becomes one when a message is needed.
template <typename T>
concept MessagePrefix = std::constructible_from<std::string, const T&>;

/// Adds the message about a piece of text that is no value: the prefix, the text as it stands, and
/// the ending of the type's row.
template <Registered T>
void addParseError(VtlCmdLogger* logger, const MessagePrefix auto& prefix, const char* text) {
  logger->addMessage(
      vtlcmdSource, levelError,
      joined({std::string(prefix), "Unable to convert '", text, valueType<T>().parseErrorEnd}));
}

/// The value of a whole text, or nothing and exactly one message that starts with `prefix`.
/// A number may have white space around it; a bool is one of two words and tolerates none.
template <Scalar T>
std::optional<T> fromString(const Orvel::String& text, VtlCmdLogger* logger,
                            const MessagePrefix auto& prefix) {
  if constexpr (std::same_as<T, bool>) {
    if (text == "true") return true;
    if (text == "false") return false;
  } else {
    ParseStatus status;
    const std::optional<T> value = parseNumber<T>(text.c_str(), status);
    if (status == ParseStatus::ParseOk) return value;
  }
  addParseError<T>(logger, prefix, text.c_str());
  return std::nullopt;
}

/// A string is its text; this never fails.
template <std::same_as<Orvel::String> T>
std::optional<T> fromString(const Orvel::String& text) {
  return text;
}

}  // namespace vtlcmd
