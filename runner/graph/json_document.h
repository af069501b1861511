#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string_view>

namespace vtlcmd::runner {

/// Parses a whole JSON document. Throws GraphError, which names the place: line and column for a
/// text that is no JSON, else a path like `$.nodes[3]`. A key given twice in one object and a
/// number beyond a double's range are errors.
nlohmann::json parseJson(std::string_view text);

}  // namespace vtlcmd::runner
