#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "logging/run_report.h"
#include "report/line_plot.h"

namespace vtlcmd::runner {

/// The numbers of each output over the frames, by the output's name; an output without numbers has
/// no row. Fewer than two frames have no rows at all.
std::map<std::string, std::vector<LinePlot>> plotOutputs(const ReportGroup& group);

}  // namespace vtlcmd::runner
