#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace vtlcmd::oracle {

/// What a stream in its default state has, and so a report.
inline constexpr int reportPrecision = 6;

// `precision` is that of the stream that takes the floats.

/// The statistics block of an array, worked out from bit patterns and exact integers. For
/// std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, std::int16_t, std::uint16_t, float and
/// double.
template <typename T>
std::string statisticsModel(std::span<const T> elements, int precision);

/// The block of float vectors of `width` components, given as one sequence of components.
std::string vectorStatisticsModel(std::span<const float> components, std::size_t width,
                                  int precision);

/// The block of booleans, given as their bytes.
std::string boolStatisticsModel(std::span<const std::uint8_t> bytes);

}  // namespace vtlcmd::oracle
