#pragma once

#include "execution/plug_in.h"
#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// The plug-in's two ways to be given a value.
enum class OutputForm { value, any };

/// Has the plug-in report an output port's value. False when it doesn't know the type; then the
/// context's logger holds a warning, the plug-in's or ours.
bool reportOutput(const PlugIn::Translation& translation, const Orvel::String& portName,
                  const Orvel::Value& value, OutputForm form, RunContext& context);

}  // namespace vtlcmd::runner
