#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "logging/vtlcmd_logger.h"

namespace vtlcmd {

/// All that a logger knows of its runs, as one document. Hands the logger's messages to the records
/// that they belong to, so it is called once. `portNames` are the ports whose texts are told.
nlohmann::ordered_json runReportAsJson(VtlCmdLogger& logger,
                                       const std::vector<std::string>& portNames);

/// The document's text. Bytes that are no UTF-8 text become replacement characters.
std::string runReportText(const nlohmann::ordered_json& report);

}  // namespace vtlcmd
