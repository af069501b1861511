#pragma once

#include <cstddef>
#include <vector>

#include "random_source.h"

namespace vtlcmd::oracle {

/// Mostly few, sometimes none, rarely thousands.
std::size_t randomCount(RandomSource& random);

/// Elements of one of several characters: any bits, small, at the limits, of like size. For the six
/// integer types, std::uint8_t, float and double.
template <typename T>
std::vector<T> randomElements(RandomSource& random, std::size_t count);

}  // namespace vtlcmd::oracle
