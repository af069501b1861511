#include "orvel_sdk/stored_type_reps.h"

#include <memory>
#include <new>
#include <utility>

#include "orvel_core/make_ptr.h"
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

template <typename Row>
MutablePtr<TypeRep> describe(const Row& row) {
  using T = typename Row::Type;
  return makeMutable<TypeRep>(TypeRep{.name = row.name,
                                      .kind = StoredStruct<T> ? structKind : plainKind,
                                      .size = sizeof(T),
                                      .alignment = alignof(T),
                                      .operations = &storedOperations<T>,
                                      .storedIndex = storedTypeIndex<T>()});
}

using Reps = std::array<TypeHandle, storedTypeCount>;

/// Members refer to other stored types, so they come when all of these are there.
template <typename T>
void addMembers(TypeRep& type, const Reps& reps) {
  if constexpr (StoredStruct<T>) {
    for (const StoredMember& member : StoredMembers<T>::rows) {
      type.members.emplace_back(member.name, Type(reps[member.type]));
      type.offsets.push_back(member.offset);
    }
  }
}

Reps describeAll() {
  return std::apply(
      [](const auto&... row) {
        const std::array made{describe(row)...};
        Reps reps;
        for (std::size_t i = 0; i < made.size(); ++i) reps[i] = Ptr<TypeRep>(MutablePtr(made[i]));
        std::size_t next = 0;
        (addMembers<typename std::remove_cvref_t<decltype(row)>::Type>(*made[next++], reps), ...);
        return reps;
      },
      storedTypes);
}

}  // namespace

const std::array<TypeHandle, storedTypeCount>& storedTypeReps() {
  static const Reps reps = describeAll();
  return reps;
}

}  // namespace Orvel::Internal
