#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>

#include "vtlcmd/host/value_types.h"

namespace Orvel {

/// All types that values are made of, each with its own C++ type: the registered ones, the records
/// and those that only reports know, in this order.
inline constexpr auto storedTypes =
    std::tuple_cat(vtlcmd::registeredTypes, vtlcmd::inputOnlyTypes, vtlcmd::reportOnlyTypes);

inline constexpr std::size_t storedTypeCount = std::tuple_size_v<decltype(storedTypes)>;

template <typename T>
concept StoredElement = vtlcmd::Registered<T> || vtlcmd::InputOnly<T> || vtlcmd::ReportOnly<T>;

/// How a value lies in memory as C++ sees it: an element type, or its arrays, Ptr<Array<...>>, to
/// any depth.
template <typename T>
concept Stored = StoredElement<typename vtlcmd::type_lists::Nesting<T>::Element>;

namespace Internal {

/// Says which stored type is meant: a place in `storedTypes` and the array levels around it.
struct StoredTypeId {
  std::size_t index;
  std::uint32_t depth;
};

template <StoredElement T>
consteval std::size_t storedTypeIndex() {
  return std::apply(
      [](const auto&... row) {
        std::size_t index = 0;
        static_cast<void>(
            ((std::is_same_v<T, typename std::remove_cvref_t<decltype(row)>::Type> || !++index) ||
             ...));
        return index;
      },
      storedTypes);
}

template <Stored T>
inline constexpr StoredTypeId storedTypeId{
    storedTypeIndex<typename vtlcmd::type_lists::Nesting<T>::Element>(),
    vtlcmd::type_lists::Nesting<T>::rank};

}  // namespace Internal

}  // namespace Orvel
