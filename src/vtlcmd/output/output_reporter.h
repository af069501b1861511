#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/output/array_printers.h"
#include "vtlcmd/output/output_line.h"

/// The reporters of an output port, five forms for each registered type: each leaves one progress
/// line and one record in the run report. A limit of zero keeps the value out of both, and then it
/// isn't looked at. [logger's thread] [may throw]

namespace vtlcmd {

template <Registered T>
void reportScalar(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  OutputLine line(*portName, valueType<T>().name, *logger);
  if (line.showsValue()) anyToText<T>(line.text(), &value);
  line.report();
}

/// Of an array of T at a rank of 1 to 3.
template <Registered T, std::uint32_t Rank>
void reportArray(const Orvel::String* portName, const Any& value, VtlCmdLogger* logger) {
  const Orvel::String typeWord = arrayTypeName<T>(Rank);
  OutputLine line(*portName, typeWord.c_str(), *logger);
  if (line.showsValue()) printArray<T, Rank>(line.text(), &value, logger);
  line.report();
}

/// Of a value with `arrayDepth` array levels around T; the type's name is the type library's.
template <Registered T>
void reportValue(const Orvel::String* portName, const Orvel::Value& value, std::size_t arrayDepth,
                 VtlCmdLogger* logger) {
  const Orvel::String typeWord = value.getType().getFullyQualifiedName();
  OutputLine line(*portName, typeWord.c_str(), *logger);
  if (line.showsValue()) printArrayValue<T>(line.text(), value, arrayDepth, logger);
  line.report();
}

}  // namespace vtlcmd
