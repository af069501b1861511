#pragma once

#include <cstdint>
#include <iterator>
#include <random>

#include "wide_integer.h"

namespace vtlcmd::oracle {

/// The same numbers from the same seed everywhere: the standard fixes the engine, but not what a
/// library's distributions make of it.
class RandomSource {
 public:
  explicit RandomSource(std::uint64_t seed) : engine_(seed) {}

  std::uint64_t bits() { return engine_(); }

  /// From 0 to `limit` - 1; the bias of 2^-64 * limit plays no part here.
  std::uint64_t below(std::uint64_t limit) {
    return static_cast<std::uint64_t>((Uint128{engine_()} * limit) >> 64);
  }

  /// From `low` to `high`, both included.
  std::int64_t between(std::int64_t low, std::int64_t high) {
    return low + static_cast<std::int64_t>(below(static_cast<std::uint64_t>(high - low) + 1));
  }

  bool oneIn(std::uint64_t count) { return below(count) == 0; }

  template <typename Choices>
  const auto& pick(const Choices& choices) {
    return std::data(choices)[below(std::size(choices))];
  }

  /// Picks a row of a table by the rows' `weight`.
  template <typename Table>
  const auto& pickWeighted(const Table& table) {
    std::uint64_t total = 0;
    for (const auto& row : table) total += row.weight;
    std::uint64_t rest = below(total);
    const auto* row = std::data(table);
    for (; rest >= row->weight; ++row) rest -= row->weight;
    return *row;
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace vtlcmd::oracle
