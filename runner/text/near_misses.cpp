#include "text/near_misses.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

constexpr std::size_t mostMisses = 3;

/// Names are short; a longer text is a mistake of another kind than a slip of the finger.
constexpr std::size_t longestName = 64;

/// A third of the letters may be wrong, and always one.
std::size_t allowance(std::string_view text) { return std::max<std::size_t>(1, text.size() / 3); }

}  // namespace

std::size_t editDistance(std::string_view a, std::string_view b) {
  std::array<std::vector<std::size_t>, 3> rows;
  for (std::vector<std::size_t>& row : rows) row.resize(b.size() + 1);
  auto& [beforeLast, last, current] = rows;
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    current[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      current[j] = std::min({replaced, last[j] + 1, current[j - 1] + 1});
      const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (exchanged) current[j] = std::min(current[j], beforeLast[j - 2] + 1);
    }
    std::swap(beforeLast, last);
    std::swap(last, current);
  }
  return last[b.size()];
}

std::vector<std::string> nearMisses(std::string_view text, const std::vector<std::string>& known) {
  if (text.size() > longestName) return {};
  std::vector<std::pair<std::size_t, std::string>> near;
  for (const std::string& name : known) {
    const std::size_t distance = editDistance(text, name);
    if (distance <= allowance(text)) near.emplace_back(distance, name);
  }
  std::stable_sort(near.begin(), near.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  if (near.size() > mostMisses) near.resize(mostMisses);
  std::vector<std::string> names;
  names.reserve(near.size());
  for (auto& [distance, name] : near) names.push_back(std::move(name));
  return names;
}

std::string nearMissHint(std::string_view text, const std::vector<std::string>& known) {
  const std::vector<std::string> names = nearMisses(text, known);
  if (names.empty()) return {};
  std::string hint = "; did you mean ";
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) hint += i + 1 == names.size() ? " or " : ", ";
    hint += inQuotes(names[i]);
  }
  return hint + "?";
}

}  // namespace vtlcmd::runner
