#pragma once

#include <span>
#include <string>

namespace vtlcmd::runner {

/// Frame numbers as `--frames` takes them, with ranges: "1-50,60,70-90x2"; empty for none. The list
/// gives the same numbers again to the bit. They ascend and are finite.
std::string exactFramesText(std::span<const double> frames);

/// The same for numbers in any order, as a person would write them: what steps without an exact
/// binary form add in the last digits is left out, and a range has three frames at least.
std::string plainFramesText(std::span<const double> frames);

}  // namespace vtlcmd::runner
