#pragma once

#include <array>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "host/imports/vantrel_math.h"
#include "output/array_average.h"

namespace vtlcmd {

static_assert(FLT_EVAL_METHOD == 0, "sums are rounded to the element's own precision");

/// Smallest, largest and sum of the elements seen so far, from the first one on.
template <typename T>
class Summary {
 public:
  explicit Summary(T first) noexcept : minimum_(first), maximum_(first), sum_(first) {}

  /// A NaN compares false: it never replaces a minimum or maximum, and never gives way as one.
  void add(T element) noexcept {
    if (minimum_ > element) minimum_ = element;
    if (element > maximum_) maximum_ = element;
    sum_ = addWrapping(sum_, element);
  }

  T minimum() const noexcept { return minimum_; }
  T maximum() const noexcept { return maximum_; }
  /// Of all `count` elements.
  T average(std::uint64_t count) const noexcept { return averageOf(sum_, count); }

 private:
  T minimum_;
  T maximum_;
  T sum_;
};

/// Component by component.
template <typename Component, std::size_t Count>
class Summary<Vantrel::Math::Vector<Component, Count>> {
 public:
  using Vector = Vantrel::Math::Vector<Component, Count>;

  explicit Summary(const Vector& first) noexcept
      : Summary(first, std::make_index_sequence<Count>{}) {}

  void add(const Vector& element) noexcept {
    for (std::size_t i = 0; i < Count; ++i) components_[i].add(element.components[i]);
  }

  Vector minimum() const noexcept {
    return each([](const auto& component) { return component.minimum(); });
  }
  Vector maximum() const noexcept {
    return each([](const auto& component) { return component.maximum(); });
  }
  Vector average(std::uint64_t count) const noexcept {
    return each([count](const auto& component) { return component.average(count); });
  }

 private:
  template <std::size_t... Index>
  Summary(const Vector& first, std::index_sequence<Index...>) noexcept
      : components_{Summary<Component>(first.components[Index])...} {}

  template <typename Function>
  Vector each(Function function) const noexcept {
    Vector vector;
    for (std::size_t i = 0; i < Count; ++i) vector.components[i] = function(components_[i]);
    return vector;
  }

  std::array<Summary<Component>, Count> components_;
};

/// Of bytes that stand for truths, any byte but 0 for true.
template <>
class Summary<bool> {
 public:
  explicit Summary(unsigned char first) noexcept : minimum_(first), maximum_(first) {}

  void add(unsigned char element) noexcept {
    if (minimum_ > element) minimum_ = element;
    if (element > maximum_) maximum_ = element;
    if (element != 0) ++trueBehindFirst_;
  }

  bool minimum() const noexcept { return minimum_ != 0; }
  bool maximum() const noexcept { return maximum_ != 0; }
  /// Whether more than half of the elements are true, where the first one counts as an element but
  /// never as a true one.
  bool average(std::uint64_t count) const noexcept {
    return static_cast<float>(trueBehindFirst_) > static_cast<float>(count) * 0.5F;
  }

 private:
  unsigned char minimum_;
  unsigned char maximum_;
  std::uint64_t trueBehindFirst_ = 0;
};

}  // namespace vtlcmd
