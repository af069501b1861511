#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace vtlcmd::runner {

/// A picture of points, as a frame's line has it, seen from the front, the side and above as a
/// `figure`; those of two components from the front alone. All sides have one scale. Points that
/// aren't finite are left out.
std::string pointViewsHtml(const nlohmann::ordered_json& picture, const std::string& frame);

}  // namespace vtlcmd::runner
