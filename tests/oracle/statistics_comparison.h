#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace vtlcmd::oracle {

// Each prints the statistics block of the same elements twice, by the plug-in and by the model, and
// returns the two texts when they differ, else an empty text.

/// For the number types that have a block.
template <typename T>
std::string statisticsDifference(std::span<const T> elements);

/// For float vectors, as one sequence of components.
template <std::size_t Width>
std::string vectorStatisticsDifference(std::span<const float> components);

/// For booleans; a true one is any byte but 0.
std::string boolStatisticsDifference(std::span<const std::uint8_t> bytes);

}  // namespace vtlcmd::oracle
