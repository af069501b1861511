#include "nodes/families.h"

namespace vtlcmd::runner::node_families {
namespace {

const NodeOperation table[] = {
    {"constant",
     {},
     NodeSetting::typeAndValue,
     [](const NodeTypes& types) { return *types.declared; },
     [](const NodeCall& call) { return *call.literal; },
     "The value that stands in the graph file."},
};

}  // namespace

std::span<const NodeOperation> constants() { return table; }

}  // namespace vtlcmd::runner::node_families
