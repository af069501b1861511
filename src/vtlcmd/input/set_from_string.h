#pragma once

#include <concepts>
#include <string>
#include <utility>
#include <vector>

#include "vtlcmd/host/store.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/input/from_string.h"
#include "vtlcmd/input/split_string.h"

/// `setFromString` in its four forms: a port's text into its `Any`. Afterwards `value` holds a T or
/// is empty; what it held before is gone in both cases. A failure leaves messages at level error,
/// each starting with `prefix`.

namespace vtlcmd {

template <typename T>
concept VectorType = Registered<T> && requires {
  T::componentCount;
};

template <Scalar T>
void setFromString(Any& value, const Orvel::String& text, VtlCmdLogger* logger,
                   const MessagePrefix auto& prefix) {
  if (const std::optional<T> parsed = fromString<T>(text, logger, prefix)) {
    store(value, makeAny(*parsed));
  } else {
    value = Any{};
  }
}

/// Pieces between commas, one a component. A wrong count is one message and nothing is parsed;
/// otherwise every bad piece gets its own.
template <VectorType T>
void setFromString(Any& value, const Orvel::String& text, VtlCmdLogger* logger,
                   const MessagePrefix auto& prefix) {
  const std::vector<std::string> pieces = splitString(text.c_str(), ',');
  if (pieces.size() != valueType<T>().components) {
    logger->addMessage(
        vtlcmdSource, levelError,
        joined({std::string(prefix), "Cannot extract ", valueType<T>().name, " value from '",
                text.c_str(), "': invalid number of vector components"}));
    value = Any{};
    return;
  }
  T vector;
  bool allParsed = true;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    ParseStatus status;
    const auto component = parseNumber<typename T::ComponentType>(pieces[i].c_str(), status);
    if (status == ParseStatus::ParseOk) {
      vector.components[i] = component.value();
    } else {
      addParseError<T>(logger, prefix, pieces[i].c_str());
      allParsed = false;
    }
  }
  if (allParsed) {
    store(value, makeAny(vector));
  } else {
    value = Any{};
  }
}

template <std::same_as<Orvel::String> T>
void setFromString(Any& value, const Orvel::String& text, VtlCmdLogger*,
                   const MessagePrefix auto&) {
  store(value, makeAny(std::move(*fromString<T>(text))));
}

/// An object can't be written as text: always refused.
template <std::same_as<ObjectPtr> T>
void setFromString(Any& value, const Orvel::String&, VtlCmdLogger* logger,
                   const MessagePrefix auto& prefix) {
  logger->addMessage(
      vtlcmdSource, levelError,
      joined({std::string(prefix), "UNSUPPORTED: setFromString() for ", valueType<T>().name}));
  value = Any{};
}

}  // namespace vtlcmd
