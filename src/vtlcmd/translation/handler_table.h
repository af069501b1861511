#pragma once

#include <cstddef>
#include <map>

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/string_order.h"
#include "vtlcmd/host/type_tags.h"

namespace vtlcmd {

class PortValueMap;
class VtlCmdLogger;

/// Fills a port's Any from its text or a default; success is that `value` holds something
/// afterwards.
using ValueSetter = void (*)(const Orvel::String* portName, bool isJobPort, const Orvel::Type& type,
                             const PortValueMap* inputValues, const PortValueMap* jobValues,
                             const Any* defaultValue, Any* value, VtlCmdLogger* logger);

/// Reports a value whose type has `arrayDepth` array levels around the registered element type.
using ValueReporter = void (*)(const Orvel::String* portName, const Orvel::Value& value,
                               std::size_t arrayDepth, VtlCmdLogger* logger);

/// Reports a value found by the tag that its Any carries.
using AnyReporter = void (*)(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger);

struct TypeHandlers {
  ValueSetter setter;
  ValueReporter reporter;
};

/// Which functions handle a type: by its name, and by the tag of a value at a rank. It owns its
/// nodes and name keys; tags are static objects. Never copied.
struct HandlerTable {
  HandlerTable();
  HandlerTable(const HandlerTable&) = delete;
  HandlerTable& operator=(const HandlerTable&) = delete;

  std::map<Orvel::String, TypeHandlers, StringOrder> byName;
  std::map<const Orvel::Internal::TypeInfo*, AnyReporter, TagOrder> byTag;
};

/// The one table of the process: built by the first call, whichever thread makes it, read only
/// ever after, and ended by an exit handler. [any thread] [may throw]
const HandlerTable& sharedHandlerTable();

}  // namespace vtlcmd
