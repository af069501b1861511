#pragma once

#include <utility>

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_ptr.h"

namespace Orvel::Internal {

/// A control block whose object may hold the last uses of others. These end after it, one after the
/// other, so that a chain of any length ends on a stack of one.
class ORVEL_CORE_API OwnedBlock : public ControlBlock {
 public:
  /// Ends the object and all whose last use goes with it; called while another one ends on this
  /// thread, leaves that to the outer call.
  void endObject() noexcept final;

 protected:
  OwnedBlock() = default;
  ~OwnedBlock() = default;

 private:
  void librarySlot() noexcept final;
  virtual void deleteBlock() noexcept = 0;

  /// The one that began to wait before this one.
  OwnedBlock* next_ = nullptr;
};

template <typename T>
class OwnedObject final : public OwnedBlock {
 public:
  template <typename... Arguments>
  explicit OwnedObject(Arguments&&... arguments) : object(std::forward<Arguments>(arguments)...) {}

  T object;

 private:
  void deleteBlock() noexcept override { delete this; }
};

/// `makeMutable` and `makePtr` for the libraries' own objects, which hold one another to any depth.
template <typename T, typename... Arguments>
MutablePtr<T> makeOwnedMutable(Arguments&&... arguments) {
  auto* block = new OwnedObject<T>(std::forward<Arguments>(arguments)...);
  return MutablePtr<T>(&block->object, block);
}

template <typename T, typename... Arguments>
Ptr<T> makeOwned(Arguments&&... arguments) {
  return makeOwnedMutable<T>(std::forward<Arguments>(arguments)...);
}

}  // namespace Orvel::Internal
