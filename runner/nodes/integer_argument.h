#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "nodes/operand.h"

namespace vtlcmd::runner {

/// An integer of any of the four types, used as a count or an index. Throws NodeError that calls
/// it `what` when it is negative.
inline std::uint64_t countArgument(const NodeCall& call, std::size_t parameter,
                                   std::string_view what) {
  std::uint64_t count = 0;
  withTypeNamed(registeredTypes, call.types[parameter].element, [&]<typename T>() {
    if constexpr (Number<T> && std::is_integral_v<T>) {
      const T number = Orvel::valueAs<T>(call[parameter]);
      if (std::cmp_less(number, 0))
        throw NodeError(std::string(what) + " " + std::to_string(number) + " is negative");
      count = static_cast<std::uint64_t>(number);
    }
  });
  return count;
}

}  // namespace vtlcmd::runner
