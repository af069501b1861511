#include "rows/rows.h"

#include <iterator>
#include <utility>

namespace vtlcmd::bench {
namespace {

template <typename... Lists>
std::vector<TimedRow> joined(Lists... lists) {
  std::vector<TimedRow> all;
  (all.insert(all.end(), std::make_move_iterator(lists.begin()),
              std::make_move_iterator(lists.end())),
   ...);
  return all;
}

}  // namespace

std::vector<TimedRow> operationRows(const Scale& scale) {
  return joined(inputRows(), outputRows(), numberTextRows(), stringListRows(scale),
                suppressedRows(scale), cachedStatisticsRows(scale), loadRows());
}

std::vector<TimedRow> runRows(const Scale& scale) {
  return joined(memoryStatisticsRows(scale), growthRows(scale), frameRows(scale));
}

}  // namespace vtlcmd::bench
