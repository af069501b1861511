#include "vtlcmd/host/port_value_map.h"

#include <utility>

namespace vtlcmd {

std::uint64_t PortValueMap::hash(const char* name) noexcept {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (; *name != '\0'; ++name) {
    hash ^= static_cast<unsigned char>(*name);
    hash *= 0x100000001b3;
  }
  return hash;
}

std::size_t PortValueMap::bucketOf(const char* name) const noexcept {
  return static_cast<std::size_t>(hash(name)) & (buckets_.size() - 1);
}

std::size_t PortValueMap::findNode(const Orvel::String& name) const noexcept {
  if (buckets_.empty()) return noNode;
  std::size_t node = buckets_[bucketOf(name.c_str())];
  while (node != noNode && !(nodes_[node].name == name)) node = nodes_[node].next;
  return node;
}

const PortValueEntry* PortValueMap::find(const Orvel::String& name) const noexcept {
  const std::size_t node = findNode(name);
  return node == noNode ? nullptr : &nodes_[node].entry;
}

void PortValueMap::insert(const Orvel::String& name, PortValueEntry entry) {
  if (const std::size_t node = findNode(name); node != noNode) {
    nodes_[node].entry = std::move(entry);
    return;
  }
  if (nodes_.size() == buckets_.size()) rehash(buckets_.empty() ? 8 : 2 * buckets_.size());
  std::size_t& bucket = buckets_[bucketOf(name.c_str())];
  nodes_.push_back({name, std::move(entry), bucket});
  bucket = nodes_.size() - 1;
}

void PortValueMap::rehash(std::size_t bucketCount) {
  buckets_.assign(bucketCount, noNode);
  for (std::size_t node = 0; node < nodes_.size(); ++node) {
    std::size_t& bucket = buckets_[bucketOf(nodes_[node].name.c_str())];
    nodes_[node].next = std::exchange(bucket, node);
  }
}

}  // namespace vtlcmd
