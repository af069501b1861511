#pragma once

#include <cstdint>

namespace vtlcmd {

/// What a report says of an array's elements, exact to the bit. Vectors go component by component.
/// The average is what the report shows: of bools the truth of "more than half", of integers an
/// integer of the element's type.
template <typename T>
struct Summary {
  T minimum;
  T maximum;
  T average;
};

/// Of `count` elements, at least one, in array order and one pass, without allocation.
///
/// An element takes the minimum's or maximum's place only where it compares less or greater: of
/// equal zeros the first stays, a NaN never comes in, and a NaN that is first never gives way. Sums
/// run one addition at a time from the first element on, in the element's own width: integers wrap,
/// floating additions round at every step. Elements of a bool array are read as bytes, any of which
/// but 0 is true.
///
/// For bool, float, double, the signed and unsigned integers of 16, 32 and 64 bits, and
/// Math::float2, float3 and float4. Any thread; the elements must stay as they are meanwhile.
template <typename T>
Summary<T> summarise(const T* elements, std::uint64_t count) noexcept;

}  // namespace vtlcmd
