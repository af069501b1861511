#pragma once

#include <string>

#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// What a picture of a value is drawn from, as JSON; empty of values that have none.
///
/// An array of numbers or truths has a histogram: {"histogram": {"low", "width", "counts",
/// "not_finite"}}. Count i is of the elements from low + i * width up to the next; the last one has
/// the largest element too. The width is 0 when all elements are the same, and whole for integers.
///
/// An array of vectors of floats or doubles, and an object with such a property `position`, has
/// points: {"points": [[x, y, z], ...]}, with as many components as the vectors have, three at
/// most; of more than 3,000 points as many that are evenly spread over the array.
///
/// The levels of nested arrays count as one.
std::string valuePicture(const ValueType& type, const Orvel::Value& value);

}  // namespace vtlcmd::runner
