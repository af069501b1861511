#pragma once

#include <string>

#include "text/json.h"

namespace vtlcmd::runner {

/// A histogram, as a frame's line has it, as a `figure`.
std::string histogramHtml(const Json& histogram, const std::string& frame);

}  // namespace vtlcmd::runner
