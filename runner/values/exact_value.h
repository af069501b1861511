#pragma once

#include <cstdint>
#include <string>

#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// The JSON text of a value of a registered type with all its bits: numbers, truths and texts as
/// they are, vectors as arrays of their components, an object as its properties by name ("count" of
/// a component property, the array of a data property) or null. An array as its "sizes", the number
/// of elements a level, null where a level is ragged or has none; arrays that the plug-in
/// summarises have "min", "max" and "average" by its arithmetic too, unless they are empty. Each
/// array has so many of its first ones as "elements", unless none are wanted; those of a nested
/// array are lists of the first ones at each level.
std::string exactValue(const ValueType& type, const Orvel::Value& value, std::uint64_t elements);

}  // namespace vtlcmd::runner
