#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace vtlcmd::runner {

/// A histogram, as a frame's line has it, as a `figure`.
std::string histogramHtml(const nlohmann::ordered_json& histogram, const std::string& frame);

}  // namespace vtlcmd::runner
