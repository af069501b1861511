#pragma once

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/host/store.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/input/input_port.h"
#include "vtlcmd/input/set_default.h"
#include "vtlcmd/input/set_from_string.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/output/value_text.h"

namespace vtlcmd {

/// Gives a port of type T its value: from the user's text in the map that the Job flag chooses,
/// else a copy of the default, unchecked, else the type's zero. Afterwards `value` is empty exactly
/// when a text was given and could not be used. `defaultValue` may be `value` itself; a copy of it
/// that fails leaves `value` as it was. [logger's thread] [may throw]
template <Registered T>
void inputSetter(const Orvel::String* portName, bool isJobPort, const Orvel::Type& type,
                 const PortValueMap* inputValues, const PortValueMap* jobValues,
                 const Any* defaultValue, Any* value, VtlCmdLogger* logger) {
  const PortValueEntry* entry = (isJobPort ? jobValues : inputValues)->find(*portName);
  const Orvel::String typeName = type.getFullyQualifiedName();
  const InputPort port{isJobPort, portName->c_str(), typeName.c_str()};
  if (entry != nullptr) {
    setFromString<T>(*value, entry->text, logger, port.prefix());
  } else {
    port.addNoValueLine(*logger);
    if (defaultValue->holdsValue()) {
      store(*value, *defaultValue);
    } else {
      setDefault<T>(*value);
    }
  }
  if (value->holdsValue()) {
    TextBuilder line = port.beginValueLine();
    anyToText<T>(line, value);
    logger->addMessage(vtlcmdSource, levelVerbose, line.text());
  }
}

}  // namespace vtlcmd
