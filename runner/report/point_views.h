#pragma once

#include <string>

#include "text/json.h"

namespace vtlcmd::runner {

/// A picture of points, as a frame's line has it, seen from the front, the side and above as a
/// `figure`; those of two components from the front alone. All sides have one scale. Points that
/// aren't finite are left out.
std::string pointViewsHtml(const Json& picture, const std::string& frame);

}  // namespace vtlcmd::runner
