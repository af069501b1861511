#pragma once

#include <atomic>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace Orvel {

namespace Internal {

/// Head of a shared object's control block: a table of virtual operations, then the use count.
/// The second slot ends the object, on every ABI; so there is no virtual destructor, which would
/// take one slot or two depending on the compiler.
class ControlBlock {
 public:
  /// Slot 0 is the library's own and never called here.
  virtual void librarySlot() noexcept = 0;
  /// Slot 1: ends the object and the block. Called once, by whoever released the last use.
  virtual void endObject() noexcept = 0;

  // Both are static, and not checked for the block's dynamic type: a host's block may come from a
  // compiler whose tables carry no type information.
  __attribute__((no_sanitize("vptr"))) static void addUse(ControlBlock* block) noexcept {
    if (block != nullptr) block->useCount.fetch_add(1, std::memory_order_relaxed);
  }
  __attribute__((no_sanitize("vptr"))) static void release(ControlBlock* block) noexcept {
    if (block == nullptr) return;
    if (block->useCount.fetch_sub(1, std::memory_order_acq_rel) == 1) block->endObject();
  }

  std::atomic<std::uint64_t> useCount{1};

 protected:
  ControlBlock() = default;
  ControlBlock(const ControlBlock&) = delete;
  ControlBlock& operator=(const ControlBlock&) = delete;
  ~ControlBlock() = default;
};

static_assert(sizeof(ControlBlock) == 16 && sizeof(std::atomic<std::uint64_t>) == 8);

/// The two fields of a shared pointer, and their counting. Counts are atomic: copies of one pointer
/// may be used on several threads, one pointer may not. A null `control` is never counted.
template <typename T>
struct SharedFields {
  T* pointer = nullptr;
  ControlBlock* control = nullptr;

  SharedFields() noexcept = default;
  /// Takes over one use that is already counted.
  SharedFields(T* object, ControlBlock* block) noexcept : pointer(object), control(block) {}
  SharedFields(const SharedFields& other) noexcept
      : pointer(other.pointer), control(other.control) {
    ControlBlock::addUse(control);
  }
  SharedFields(SharedFields&& other) noexcept
      : pointer(std::exchange(other.pointer, nullptr)),
        control(std::exchange(other.control, nullptr)) {}
  ~SharedFields() { ControlBlock::release(control); }
  SharedFields& operator=(SharedFields other) noexcept {
    std::swap(pointer, other.pointer);
    std::swap(control, other.control);
    return *this;
  }

  T* get() const noexcept { return pointer; }
  T* operator->() const noexcept { return pointer; }
  auto& operator*() const noexcept requires(!std::is_void_v<T>) { return *pointer; }
  explicit operator bool() const noexcept { return pointer != nullptr; }
};

/// Another type whose objects can be pointed at as T.
template <typename U, typename T>
concept SeenAs = std::convertible_to<U*, T*> && !std::same_as<U, T>;

}  // namespace Internal

/// A shared object that its maker may still write to.
template <typename T>
class MutablePtr : public Internal::SharedFields<T> {
 public:
  using Internal::SharedFields<T>::SharedFields;
};

/// A shared object, shared with whoever else holds it.
template <typename T>
class Ptr : public Internal::SharedFields<T> {
 public:
  using Internal::SharedFields<T>::SharedFields;

  /// Takes over the fields; the use count stays.
  Ptr(MutablePtr<T>&& other) noexcept : Internal::SharedFields<T>(std::move(other)) {}

  /// One more use of the same object, seen as another type that its pointer converts to.
  template <Internal::SeenAs<T> U>
  Ptr(Ptr<U> other) noexcept
      : Internal::SharedFields<T>(std::exchange(other.pointer, nullptr),
                                  std::exchange(other.control, nullptr)) {}

  /// The same use under the type that the caller knows the object to have.
  template <typename U>
  Ptr<U> castTo() && noexcept {
    return Ptr<U>(static_cast<U*>(std::exchange(this->pointer, nullptr)),
                  std::exchange(this->control, nullptr));
  }
};

static_assert(sizeof(Ptr<int>) == 16 && offsetof(Ptr<int>, pointer) == 0 &&
              offsetof(Ptr<int>, control) == 8);
static_assert(sizeof(MutablePtr<int>) == 16);

}  // namespace Orvel
