#pragma once

#include "nodes/node_operation.h"
#include "vtlcmd/host/imports/vantrel_object.h"

namespace vtlcmd::runner {

/// The object that a node's first parameter takes. Throws NodeError when it is null.
const Vantrel::Object& objectArgument(const NodeCall& call);

/// The array of a data property. Throws NodeError when the object has no such property or the array
/// is of another type.
Orvel::Value dataProperty(const Vantrel::Object& object, const Orvel::String& name,
                          const ValueType& type);

}  // namespace vtlcmd::runner
