#include "orvel_sdk/stored_type_reps.h"

#include <memory>
#include <new>
#include <utility>

#include "orvel_core/owned_block.h"
#include "orvel_sdk/representation.h"
#include "orvel_sdk/stored_members.h"

namespace Orvel::Internal {
namespace {

template <typename T>
void zeroStored(const TypeRep&, void* raw) {
  ::new (raw) T{};
}

template <typename T>
void copyStored(const TypeRep&, void* raw, const void* source) {
  ::new (raw) T(*static_cast<const T*>(source));
}

template <typename T>
void destroyStored(const TypeRep&, void* value) noexcept {
  std::destroy_at(static_cast<T*>(value));
}

template <typename T>
constexpr StorageOperations storedOperations{zeroStored<T>, copyStored<T>, destroyStored<T>};

template <typename T>
MutablePtr<TypeRep> describe() {
  return makeOwnedMutable<TypeRep>(TypeRep{.name = vtlcmd::valueType<T>().name,
                                           .kind = StoredStruct<T> ? structKind : plainKind,
                                           .size = sizeof(T),
                                           .alignment = alignof(T),
                                           .operations = &storedOperations<T>,
                                           .storedIndex = storedTypeIndex<T>()});
}

using Reps = std::array<TypeHandle, storedTypeCount>;

template <typename T>
void addMembers(TypeRep& type, const Reps& reps) {
  if constexpr (StoredStruct<T>) {
    for (const StoredMember& member : StoredMembers<T>::rows) {
      type.members.push_back(
          Representation<StructType::Member>::make(member.name, typeOf(reps[member.type])));
      type.offsets.push_back(member.offset);
    }
    type.structLevels = 1;
  }
}

Reps describeAll() {
  Reps reps;
  std::array<TypeRep*, storedTypeCount> open{};
  vtlcmd::forEachRow(storedTypes, [&]<typename Row>(const Row&) {
    using T = typename Row::Type;
    MutablePtr<TypeRep> rep = describe<T>();
    open[storedTypeIndex<T>()] = rep.get();
    reps[storedTypeIndex<T>()] = Ptr<TypeRep>(std::move(rep));
  });
  // Members refer to other stored types, so they come when all of these are there.
  vtlcmd::forEachRow(storedTypes, [&]<typename Row>(const Row&) {
    using T = typename Row::Type;
    addMembers<T>(*open[storedTypeIndex<T>()], reps);
  });
  return reps;
}

}  // namespace

const std::array<TypeHandle, storedTypeCount>& storedTypeReps() {
  static const Reps reps = describeAll();
  return reps;
}

}  // namespace Orvel::Internal
