#pragma once

#include <iosfwd>

#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

/// Array files of NumPy, in C order and this machine's byte order.

namespace vtlcmd::runner {

/// Whether values of the type are numbers, vectors, matrices or arrays of them.
bool fitsNpy(const ValueType& type);

/// Writes a value of such a type with all its bits. A single value is an array of one element;
/// each array level is a dimension, so are a vector's components, and a matrix's rows and columns.
/// Throws std::invalid_argument when arrays of one level differ in size, before anything is
/// written.
void writeNpy(std::ostream& stream, const ValueType& type, const Orvel::Value& value);

}  // namespace vtlcmd::runner
