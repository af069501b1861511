#include "values/level_sizes.h"

namespace vtlcmd::runner {
namespace {

void addSizes(std::vector<LevelSize>& levels, std::size_t level, const Orvel::Value& value) {
  Orvel::ArrayValue array(value);
  LevelSize& known = levels[level];
  if (!known.size) known.size = array.size();
  known.isRagged |= *known.size != array.size();
  if (level + 1 == levels.size()) return;
  for (std::uint64_t i = 0; i < array.size(); ++i) addSizes(levels, level + 1, array.getElement(i));
}

}  // namespace

std::vector<LevelSize> levelSizes(const Orvel::Value& array, std::uint32_t depth) {
  std::vector<LevelSize> levels(depth);
  addSizes(levels, 0, array);
  return levels;
}

}  // namespace vtlcmd::runner
