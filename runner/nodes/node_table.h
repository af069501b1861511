#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "nodes/node_operation.h"

namespace vtlcmd::runner {

/// The families of the node table, in the order in which they are told to users.
std::span<const std::span<const NodeOperation>> nodeFamilies();

/// Null when there is no operation of that name.
const NodeOperation* findOperation(std::string_view name);

std::vector<std::string> operationNames();

}  // namespace vtlcmd::runner
