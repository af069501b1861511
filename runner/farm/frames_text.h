#pragma once

#include <span>
#include <string>

namespace vtlcmd::runner {

/// Frame numbers as `--frames` takes them, in the order given: "1-50,60,70-90x2". What steps
/// without an exact binary form add in the last digits is left out.
std::string framesText(std::span<const double> frames);

}  // namespace vtlcmd::runner
