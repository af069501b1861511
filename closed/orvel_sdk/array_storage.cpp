#include "orvel_sdk/array_storage.h"

#include <cstring>
#include <memory>
#include <new>

#include "orvel_core/owned_block.h"

namespace Orvel::Internal {
namespace {

UntypedTypeRep memoryOf(const TypeRep& element) noexcept {
  return {element.size, element.alignment};
}

void zeroArray(const TypeRep& type, void* raw) {
  ::new (raw) ArrayPtr(makeOwned<RunTimeArray>(elementOf(type)));
}

void copyArray(const TypeRep&, void* raw, const void* source) {
  ::new (raw) ArrayPtr(*static_cast<const ArrayPtr*>(source));
}

void destroyArray(const TypeRep&, void* value) noexcept {
  std::destroy_at(static_cast<ArrayPtr*>(value));
}

}  // namespace

const StorageOperations arrayOperations{zeroArray, copyArray, destroyArray};

RunTimeArray::RunTimeArray(TypeHandle element, std::uint64_t count)
    : RunTimeArray(std::move(element)) {
  if (count == 0) return;
  data = memoryOf(*elementType).allocate(count);
  capacity = count;
}

RunTimeArray::~RunTimeArray() {
  auto* bytes = static_cast<std::byte*>(data);
  for (std::uint64_t i = 0; i < size; ++i) {
    elementType->operations->destroy(*elementType, bytes + i * elementType->size);
  }
  if (capacity != 0) memoryOf(*elementType).deallocate(data, capacity);
}

void RunTimeArray::append(const void* element) {
  void* raw = static_cast<std::byte*>(data) + size * elementType->size;
  elementType->operations->copy(*elementType, raw, element);
  ++size;
}

Elements elementsOf(const ArrayPtr& array) noexcept {
  if (!array) return {nullptr, 0};
  // The pointer may be to an Array of any element type: the fields are read as bytes.
  struct Fields {
    const std::byte* data;
    std::uint64_t size;
  } fields;
  std::memcpy(&fields, array.get(), sizeof fields);
  return {fields.data, fields.size};
}

}  // namespace Orvel::Internal
