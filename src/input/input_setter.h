#pragma once

#include <string>

#include "host/host_records.h"
#include "host/imports/orvel_types.h"
#include "host/port_value_map.h"
#include "host/value_types.h"
#include "input/set_default.h"
#include "input/set_from_string.h"
#include "logging/vtlcmd_logger.h"
#include "output/value_text.h"

namespace vtlcmd {

/// Gives a port of type T its value: from the user's text in the map that the Job flag chooses,
/// else a copy of the default, unchecked, else the type's zero. Afterwards `value` is empty exactly
/// when a text was given and could not be used. [logger's thread] [may throw]
template <Registered T>
void inputSetter(const Orvel::String* portName, bool isJobPort, const Orvel::Type& type,
                 const PortValueMap* inputValues, const PortValueMap* jobValues,
                 const Any* defaultValue, Any* value, VtlCmdLogger* logger) {
  const PortValueEntry* entry = (isJobPort ? jobValues : inputValues)->find(*portName);
  const std::string portWord = isJobPort ? "Job" : "input";
  const std::string typeName = type.getFullyQualifiedName().c_str();
  if (entry != nullptr) {
    // The plain port's word has a capital here and in no other line of this setter.
    const std::string prefix = std::string(isJobPort ? "Job" : "Input") + " port '" +
                               portName->c_str() + "' (" + typeName + "): ";
    setFromString<T>(*value, entry->text, logger, prefix);
  } else {
    logger->addMessage(vtlcmdSource, levelVerbose,
                       "No value was provided to vtlcmd for " + portWord + " port '" +
                           portName->c_str() + "' (" + typeName +
                           "). A default value will be used.");
    if (defaultValue->holdsValue()) {
      *value = *defaultValue;
    } else {
      setDefault<T>(*value);
    }
  }
  if (value->holdsValue()) {
    logger->addMessage(vtlcmdSource, levelVerbose,
                       "Set " + portWord + " port '" + portName->c_str() + "': (" + typeName +
                           ") " + anyToText<T>(value));
  }
}

}  // namespace vtlcmd
