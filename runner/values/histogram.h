#pragma once

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace vtlcmd::runner {

/// So many bars can be told apart at a small picture's size.
inline constexpr std::size_t mostBins = 32;

/// Counts numbers that come twice: first to learn the bounds, then to be counted.
template <typename T>
requires std::integral<T> || std::floating_point<T>
class Histogram {
 public:
  /// The distance of two numbers, without overflow.
  using Width = std::conditional_t<std::integral<T>, std::uint64_t, double>;

  void bound(T number) {
    if (!isFinite(number)) return;
    low_ = isEmpty() ? number : std::min(low_, number);
    high_ = isEmpty() ? number : std::max(high_, number);
    isEmpty_ = false;
  }

  /// After all were bounded.
  void count(T number) {
    if (!isFinite(number)) {
      ++notFinite_;
      return;
    }
    if (counts_.empty()) counts_.resize(bins());
    ++counts_[bin(number)];
  }

  /// No finite number came.
  bool isEmpty() const { return isEmpty_; }

  T low() const { return low_; }

  /// Of a bin; 0 when there is one number only.
  Width width() const {
    if (low_ == high_) return 0;
    if constexpr (std::integral<T>) {
      return distance(high_) / mostBins + 1;
    } else {
      return (double{high_} / 2 - double{low_} / 2) / (mostBins / 2.0);
    }
  }

  const std::vector<std::uint64_t>& counts() const { return counts_; }
  std::uint64_t notFinite() const { return notFinite_; }

 private:
  static bool isFinite(T number) {
    if constexpr (std::floating_point<T>) return std::isfinite(number);
    return true;
  }

  /// From the lowest one, for integers.
  std::uint64_t distance(T number) const {
    return static_cast<std::uint64_t>(number) - static_cast<std::uint64_t>(low_);
  }

  std::size_t bins() const {
    if (low_ == high_) return 1;
    if constexpr (std::integral<T>) return static_cast<std::size_t>(distance(high_) / width()) + 1;
    return mostBins;
  }

  std::size_t bin(T number) const {
    if (low_ == high_) return 0;
    if constexpr (std::integral<T>) {
      return static_cast<std::size_t>(distance(number) / width());
    } else {
      const double share =
          (double{number} / 2 - double{low_} / 2) / (double{high_} / 2 - double{low_} / 2);
      return std::min(mostBins - 1, static_cast<std::size_t>(share * mostBins));
    }
  }

  T low_{};
  T high_{};
  bool isEmpty_ = true;
  std::vector<std::uint64_t> counts_;
  std::uint64_t notFinite_ = 0;
};

}  // namespace vtlcmd::runner
