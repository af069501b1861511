#pragma once

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "host/host_records.h"
#include "host/imports/orvel_values.h"
#include "host/value_types.h"
#include "logging/vtlcmd_logger.h"
#include "output/array_printers.h"

/// The reporters of an output port, five forms for each registered type: each leaves one progress
/// line and one record in the run report. A limit of zero keeps the value out of both, and then it
/// isn't looked at. [logger's thread] [may throw]

namespace vtlcmd {

/// The body of all forms; `printValue` writes the value text to the stream that it is given.
template <typename PrintValue>
void reportOutput(const Orvel::String& portName, const Orvel::String& typeWord,
                  VtlCmdLogger* logger, PrintValue&& printValue) {
  std::ostringstream line;
  const std::uint32_t printLimit = logger->printLimit;
  line << "Output port '" << portName.c_str() << "': (" << typeWord.c_str();
  if (printLimit != 0) {
    line << ") ";
    std::ostringstream valueStream;
    printValue(valueStream);
    const std::string valueText = valueStream.str();
    line << valueText;
    logger->reportOutputValue(portName.c_str(), typeWord.c_str(), valueText.c_str());
  } else {
    line << " output suppressed)";
    logger->reportOutputSuppressed(portName.c_str(), typeWord.c_str());
  }
  logger->addMessage(vtlcmdSource, levelProgress, line.str());
}

template <Registered T>
void reportScalar(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  reportOutput(*portName, valueType<T>().name, logger,
               [&](std::ostream& stream) { stream << anyToText<T>(&value); });
}

/// Of an array of T at a rank of 1 to 3.
template <Registered T, std::uint32_t Rank>
void reportArray(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  reportOutput(*portName, arrayTypeName<T>(Rank), logger,
               [&](std::ostream& stream) { printArray<T, Rank>(stream, &value, logger); });
}

template <Registered T>
void reportArray1(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  reportArray<T, 1>(portName, value, logger);
}
template <Registered T>
void reportArray2(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  reportArray<T, 2>(portName, value, logger);
}
template <Registered T>
void reportArray3(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  reportArray<T, 3>(portName, value, logger);
}

/// Of a value with `arrayDepth` array levels around T; the type's name is the type library's.
template <Registered T>
void reportValue(const Orvel::String* portName, const Orvel::Value& value, std::size_t arrayDepth,
                 VtlCmdLogger* logger) {
  reportOutput(
      *portName, value.getType().getFullyQualifiedName(), logger,
      [&](std::ostream& stream) { printArrayValue<T>(stream, value, arrayDepth, logger); });
}

}  // namespace vtlcmd
