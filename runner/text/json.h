#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

namespace vtlcmd::runner {

/// A JSON value whose objects keep their keys in order.
using Json = nlohmann::ordered_json;

/// The value that a JSON text stands for. Throws nlohmann::json::parse_error where it is none.
Json parseJson(std::string_view text);

}  // namespace vtlcmd::runner
