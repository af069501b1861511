#include "nodes/node_table.h"

#include <array>

#include "nodes/families.h"

namespace vtlcmd::runner {

std::span<const std::span<const NodeOperation>> nodeFamilies() {
  namespace of = node_families;
  static const std::array families{of::constants(),      of::arithmetic(), of::comparisons(),
                                   of::conversions(),    of::arrays(),     of::selections(),
                                   of::reductions(),     of::ordering(),   of::vectors(),
                                   of::vectorProducts(), of::matrices(),   of::texts(),
                                   of::runFacts(),       of::objects(),    of::meshes(),
                                   of::files(),          of::textFiles()};
  return families;
}

const NodeOperation* findOperation(std::string_view name) {
  for (const std::span<const NodeOperation> family : nodeFamilies()) {
    for (const NodeOperation& operation : family) {
      if (operation.name == name) return &operation;
    }
  }
  return nullptr;
}

std::vector<std::string> operationNames() {
  std::vector<std::string> names;
  for (const std::span<const NodeOperation> family : nodeFamilies()) {
    for (const NodeOperation& operation : family) names.emplace_back(operation.name);
  }
  return names;
}

}  // namespace vtlcmd::runner
