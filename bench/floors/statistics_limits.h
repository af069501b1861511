#pragma once

#include <cstdint>

/// What no statistics of an array can undercut. Each function reads all elements and keeps its
/// result from being dropped.

namespace vtlcmd::bench {

/// The elements one by one onto one sum, each addition waiting for the last.
void addOneByOne(const float* elements, std::uint64_t count);
void addOneByOne(const double* elements, std::uint64_t count);

/// Vectors of 2, 3 or 4 floats without gaps, one addition of whole vectors an element.
void addVectorsOneByOne(const float* components, std::uint64_t count, std::uint64_t width);

/// Every byte once, with the widest loads that the processor has, onto sums of 64-bit integers: the
/// additions of narrower ones cost the same. The address is a multiple of 64, `size` of 256.
void addWidest(const void* bytes, std::uint64_t size);

}  // namespace vtlcmd::bench
