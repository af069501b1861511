#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "vtlcmd/host/imports/orvel_string.h"

namespace vtlcmd {

/// What the user gave for a port.
struct PortValueEntry {
  /// The runner's; never read here.
  Orvel::String hostText;
  Orvel::String text;
};

/// Port name to user text. The runner builds it, the plug-in searches it; names compare exactly.
/// Copyable. Concurrent searches are safe as long as nobody inserts.
///
/// Hash and bucket index are part of the border: 64-bit FNV-1a over the name up to its terminator,
/// masked with the bucket count, a power of two, less one.
class PortValueMap {
 public:
  /// FNV-1a with its published 64-bit offset basis and prime.
  static std::uint64_t hash(const char* name) noexcept;

  /// The entry of a port, null when the map has none; valid until the next `insert`.
  const PortValueEntry* find(const Orvel::String& name) const noexcept;

  /// Sets the entry of a port; a later entry for a name replaces the earlier.
  void insert(const Orvel::String& name, PortValueEntry entry);

  std::size_t size() const noexcept { return nodes_.size(); }
  bool empty() const noexcept { return nodes_.empty(); }

  /// 0 until the first `insert`.
  std::size_t bucketCount() const noexcept { return buckets_.size(); }
  /// Of a terminated name; only of a map with buckets.
  std::size_t bucketOf(const char* name) const noexcept;

 private:
  static constexpr std::size_t noNode = static_cast<std::size_t>(-1);

  struct Node {
    Orvel::String name;
    PortValueEntry entry;
    std::size_t next;
  };

  std::size_t findNode(const Orvel::String& name) const noexcept;
  void rehash(std::size_t bucketCount);

  /// In order of insertion; a bucket holds the index of its first node, a node that of the next.
  std::vector<Node> nodes_;
  std::vector<std::size_t> buckets_;
};

}  // namespace vtlcmd
