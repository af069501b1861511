#pragma once

#include <cstdint>
#include <utility>

#include "vtlcmd/host/imports/orvel_ptr.h"

namespace Orvel {

namespace Internal {

/// An object together with its use count, in one allocation.
template <typename T>
class OwningBlock final : public ControlBlock {
 public:
  template <typename... Arguments>
  explicit OwningBlock(Arguments&&... arguments) : object(std::forward<Arguments>(arguments)...) {}

  T object;

 private:
  void librarySlot() noexcept override {}
  void endObject() noexcept override { delete this; }
};

}  // namespace Internal

/// A new T with one use, made from the arguments. What its constructor and the allocator throw
/// passes through.
template <typename T, typename... Arguments>
MutablePtr<T> makeMutable(Arguments&&... arguments) {
  auto* block = new Internal::OwningBlock<T>(std::forward<Arguments>(arguments)...);
  return MutablePtr<T>(&block->object, block);
}

template <typename T, typename... Arguments>
Ptr<T> makePtr(Arguments&&... arguments) {
  return makeMutable<T>(std::forward<Arguments>(arguments)...);
}

/// The uses at this moment, 0 for a pointer without control block. Other threads may change the
/// count at any time.
template <typename T>
std::uint64_t useCount(const Ptr<T>& pointer) noexcept {
  return pointer.control == nullptr ? 0 : pointer.control->useCount.load();
}

}  // namespace Orvel
