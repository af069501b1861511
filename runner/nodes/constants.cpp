#include "nodes/families.h"

namespace vtlcmd::runner::node_families {
namespace {

const NodeOperation constantOperations[] = {
    {"constant",
     {},
     NodeSetting::typeAndValue,
     [](const NodeTypes& types) { return *types.declared; },
     [](const NodeCall& call) { return *call.literal; },
     "The value that stands in the graph file."},
};

}  // namespace

std::span<const NodeOperation> constants() { return constantOperations; }

}  // namespace vtlcmd::runner::node_families
