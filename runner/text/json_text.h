#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace vtlcmd::runner {

/// The text of a JSON value, on one line unless it is indented. Bytes that are no UTF-8 text become
/// replacement characters. Control characters are escaped, those that JSON would allow as they are
/// too, so that a document can't steer a terminal.
std::string jsonText(const nlohmann::ordered_json& json, int indent = -1);

/// A text as it is, any other value as its JSON text.
std::string plainText(const nlohmann::ordered_json& json);

}  // namespace vtlcmd::runner
