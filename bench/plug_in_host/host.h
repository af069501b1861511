#pragma once

#include <cstdint>

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::bench {

/// The records of one run with one port, as a host hands them in.
struct Host {
  explicit Host(std::uint32_t printLimit = 10) : logger(printLimit) {}

  Orvel::String portName = "port";
  PortValueMap inputValues;
  PortValueMap jobValues;
  VtlCmdLogger logger;
  RunContext context{&inputValues, &jobValues, 0, 0, 1, {}, {}, &logger};
  InputValueData input{nullptr, &portName, false, {}, &context};
  OutputValueData output{nullptr, &portName, &context};
};

}  // namespace vtlcmd::bench
