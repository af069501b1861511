#include "vtlcmd/stand_in/any_bridge.h"

#include <array>
#include <stdexcept>

#include "orvel_sdk/any_tags.h"
#include "orvel_sdk/representation.h"
#include "orvel_sdk/value_rep.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace Orvel {
namespace {

using Internal::repOf;
using vtlcmd::Any;
using vtlcmd::AnyOp;

using AnyMaker = Any (*)(const void* value);
using AnyMakersByRank = std::array<AnyMaker, vtlcmd::registeredRanks>;

template <typename T, std::uint32_t Rank>
constexpr AnyMaker anyMaker() {
  if constexpr (vtlcmd::Tagged<T, Rank>) {
    return [](const void* value) {
      return vtlcmd::makeAny(*static_cast<const vtlcmd::StoredArray<T, Rank>*>(value));
    };
  } else {
    return nullptr;
  }
}

template <typename Row>
constexpr AnyMakersByRank anyMakersOf(const Row&) {
  using T = typename Row::Type;
  return {anyMaker<T, 0>(), anyMaker<T, 1>(), anyMaker<T, 2>(), anyMaker<T, 3>()};
}

/// By place in `storedTypes` and rank; null where the type table has no tag.
constexpr std::array anyMakers =
    std::apply([](const auto&... row) { return std::array{anyMakersOf(row)...}; }, storedTypes);

AnyMaker anyMakerOf(const Internal::TypeRep& type) {
  const std::size_t index = Internal::innermostOf(type).storedIndex;
  if (index == Internal::TypeRep::notStored || type.depth >= vtlcmd::registeredRanks) {
    return nullptr;
  }
  return anyMakers[index][type.depth];
}

/// A value without a tag in the type table, as an Any keeps it. The tag is made with the Any, since
/// asking for it can't fail.
struct Untabled {
  Internal::ValueHandle value;
  const Internal::TypeInfo* tag;
};

/// Of the handle; nobody asks for this tag.
constexpr auto handleTag = vtlcmd::makeTag("ValueHandle", 0, 0);

/// The manager of values without a tag in the type table: holds the handle, shows the value.
void manageUntabled(vtlcmd::AnyOpArgs* args) {
  const Untabled& held = *vtlcmd::any_operations::valueOf<Untabled>(*args->self);
  switch (args->op) {
    case AnyOp::cast: {
      const auto& wanted = *static_cast<const Internal::TypeInfo*>(args->other);
      args->result = vtlcmd::sameType(wanted, *held.tag) ? held.value->storage : nullptr;
      break;
    }
    case AnyOp::address:
      args->other = held.value->storage;
      break;
    case AnyOp::type:
      args->other = const_cast<Internal::TypeInfo*>(held.tag);
      break;
    default:
      vtlcmd::any_operations::manage<Untabled, handleTag>(args);
  }
}

}  // namespace

Any toAny(const Value& value) {
  if (const AnyMaker make = anyMakerOf(*repOf(value)->type)) return make(repOf(value)->storage);
  Any any = vtlcmd::makeTaggedAny<handleTag>(
      Untabled{repOf(value), &Internal::tagOf(*repOf(value)->type)});
  any.manager = &manageUntabled;
  return any;
}

Value fromAny(const Type& type, const Any& any) {
  if (any.manager == &manageUntabled) {
    const Value held =
        Internal::valueOf(vtlcmd::any_operations::valueOf<Untabled>(const_cast<Any&>(any))->value);
    if (equalTypes(held.getType(), type)) return held;
  } else if (any.holdsValue() &&
             Internal::innermostOf(*repOf(type)).storedIndex != Internal::TypeRep::notStored) {
    const void* address = vtlcmd::any_operations::cast(any, Internal::tagOf(*repOf(type)));
    if (address != nullptr) return Internal::copyValue(type, address);
  }
  throw std::invalid_argument("The Any holds no value of type " + Internal::quoted(*repOf(type)) +
                              ".");
}

}  // namespace Orvel
