#include "graph/evaluation_order.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

using Nodes = std::vector<std::size_t>;

TEST(EvaluationOrder, KeepsGivenOrderWhereItCan) {
  EXPECT_EQ(evaluationOrder({}), Nodes{});
  EXPECT_EQ(evaluationOrder({{}, {}, {}}), (Nodes{0, 1, 2}));
  EXPECT_EQ(evaluationOrder({{2}, {}, {}}), (Nodes{1, 2, 0}));
}

TEST(EvaluationOrder, SourcesComeFirst) {
  EXPECT_EQ(evaluationOrder({{1}, {2}, {3}, {}}), (Nodes{3, 2, 1, 0}));
  EXPECT_EQ(evaluationOrder({{}, {0}, {0}, {1, 2, 1}}), (Nodes{0, 1, 2, 3}));
}

TEST(EvaluationOrder, LeavesOutCyclesAndWhatIsBehind) {
  EXPECT_EQ(evaluationOrder({{}, {2}, {1}, {2}, {0}}), (Nodes{0, 4}));
}

TEST(FindCycle, NoneInAnOrderedGraph) { EXPECT_EQ(findCycle({{}, {0}, {0, 1}}), Nodes{}); }

TEST(FindCycle, NamesOnlyItsMembers) {
  EXPECT_EQ(findCycle({{0}}), (Nodes{0}));
  // Node 0 stands behind the cycle of 1, 2 and 3.
  EXPECT_EQ(findCycle({{3}, {3}, {1}, {2}}), (Nodes{1, 2, 3}));
}

}  // namespace
}  // namespace vtlcmd::runner
