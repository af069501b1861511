#include "orvel_sdk/any_bridge.h"

#include <array>
#include <stdexcept>

#include "host/value_types.h"
#include "orvel_sdk/any_tags.h"
#include "orvel_sdk/value_factory.h"
#include "orvel_sdk/value_rep.h"

namespace Orvel {
namespace {

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

/// By place in `storedTypes` and rank; null where the type table has no tag.
constexpr std::array anyMakers = std::apply(
    [](const auto&... row) {
      return []<typename... T>(std::tuple<T...>*) {
        return std::array{AnyMakersByRank{anyMaker<T, 0>(), anyMaker<T, 1>(), anyMaker<T, 2>(),
                                          anyMaker<T, 3>()}...};
      }(static_cast<std::tuple<typename std::remove_cvref_t<decltype(row)>::Type...>*>(nullptr));
    },
    storedTypes);

AnyMaker anyMakerOf(const Internal::TypeRep& type) {
  const std::size_t index = Internal::innermostOf(type).storedIndex;
  if (index == Internal::TypeRep::notStored || type.depth >= vtlcmd::registeredRanks) {
    return nullptr;
  }
  return anyMakers[index][type.depth];
}

/// How a value handle is kept; nobody asks for this tag.
constexpr auto handleTag = vtlcmd::makeTag("ValueHandle", 0, 0);

/// The manager of values without a tag in the type table: holds the handle, shows the value.
void manageUntabled(vtlcmd::AnyOpArgs* args) {
  const Internal::ValueRep& value =
      **vtlcmd::any_operations::valueOf<Internal::ValueHandle>(*args->self);
  switch (args->op) {
    case AnyOp::cast: {
      const auto& wanted = *static_cast<const Internal::TypeInfo*>(args->other);
      args->result =
          vtlcmd::sameType(wanted, Internal::tagOf(*value.type)) ? value.storage : nullptr;
      break;
    }
    case AnyOp::address:
      args->other = value.storage;
      break;
    case AnyOp::type:
      args->other = const_cast<Internal::TypeInfo*>(&Internal::tagOf(*value.type));
      break;
    default:
      vtlcmd::any_operations::manage<Internal::ValueHandle, handleTag>(args);
  }
}

}  // namespace

Any toAny(const Value& value) {
  if (const AnyMaker make = anyMakerOf(*value.rep()->type)) return make(value.rep()->storage);
  Any any = vtlcmd::makeTaggedAny<handleTag>(value.rep());
  any.manager = &manageUntabled;
  return any;
}

Value fromAny(const Type& type, const Any& any) {
  if (any.manager == &manageUntabled) {
    const Value held(
        *vtlcmd::any_operations::valueOf<Internal::ValueHandle>(const_cast<Any&>(any)));
    if (equalTypes(held.getType(), type)) return held;
  } else if (any.holdsValue() &&
             Internal::innermostOf(*type.rep()).storedIndex != Internal::TypeRep::notStored) {
    const void* address = vtlcmd::any_operations::cast(any, Internal::tagOf(*type.rep()));
    if (address != nullptr) return Internal::copyValue(type, address);
  }
  throw std::invalid_argument("The Any holds no value of type " + Internal::quoted(*type.rep()) +
                              ".");
}

}  // namespace Orvel
