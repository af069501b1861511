#pragma once

#include <span>

#include "nodes/node_operation.h"

namespace vtlcmd::runner::node_families {

std::span<const NodeOperation> constants();
std::span<const NodeOperation> arithmetic();
std::span<const NodeOperation> comparisons();
std::span<const NodeOperation> conversions();
std::span<const NodeOperation> arrays();
std::span<const NodeOperation> selections();
std::span<const NodeOperation> reductions();
std::span<const NodeOperation> ordering();
std::span<const NodeOperation> vectors();
std::span<const NodeOperation> vectorProducts();
std::span<const NodeOperation> matrices();
std::span<const NodeOperation> texts();
std::span<const NodeOperation> runFacts();
std::span<const NodeOperation> objects();
std::span<const NodeOperation> meshes();
std::span<const NodeOperation> files();
std::span<const NodeOperation> textFiles();

}  // namespace vtlcmd::runner::node_families
