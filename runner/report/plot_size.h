#pragma once

namespace vtlcmd::runner {

// In units of the picture's own coordinates, which the page stretches to the room that there is.
inline constexpr double plotWidth = 1000;
inline constexpr double plotHeight = 500;

}  // namespace vtlcmd::runner
