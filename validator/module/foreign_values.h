#pragma once

#include <cstdint>

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/vantrel_math.h"

#if defined(VtlCmdForeignModule_EXPORTS)
#define FOREIGN_MODULE_API CLOSED_LIBRARY_EXPORT
#else
#define FOREIGN_MODULE_API CLOSED_LIBRARY_IMPORT
#endif

/// Values made in a library of their own, with that library's managers and tags.

namespace vtlcmd::foreign_module {

FOREIGN_MODULE_API Any anyOf(std::int32_t value);
FOREIGN_MODULE_API Any anyOf(const Orvel::String& value);
FOREIGN_MODULE_API Any anyOf(const Vantrel::Math::double4& value);
/// An array of so many ones; `rank` 1 to 4 wraps it.
FOREIGN_MODULE_API Any onesOf(std::uint64_t count, std::uint32_t rank);
/// An `int` under a tag that equals itself alone.
FOREIGN_MODULE_API Any uniqueInt(std::int32_t value);

/// How often a value of `counted` has been ended.
struct Counts {
  int ended;
};
/// A value of the module's own type, which nobody registered.
FOREIGN_MODULE_API Any counted();
FOREIGN_MODULE_API Counts counts();

}  // namespace vtlcmd::foreign_module
