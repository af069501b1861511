#pragma once

#include "graph/json_place.h"
#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// The value that a JSON value stands for under a type. Throws GraphError at the part that doesn't
/// fit.
///
/// Integers keep all 64 bits. Floating types take any number and the texts "nan", "inf" and
/// "-inf". A vector is an array of its components, a matrix an array of its components row by row,
/// an array an array of its elements. An `Object` is null.
Orvel::Value literalValue(const ValueType& type, const JsonPlace& json);

}  // namespace vtlcmd::runner
