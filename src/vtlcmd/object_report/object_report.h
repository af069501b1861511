#pragma once

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/text/text_builder.h"

/// The text of an object: its component properties with their element counts, then its data
/// properties with the statistics of their arrays, each group in the geometry library's order. No
/// limit applies, and the object is only read. All operations append to `text`; what the libraries
/// throw passes through.

namespace vtlcmd {

/// Of several lines, without a line end behind the last. A null object has a text of its own.
void objectReport(TextBuilder& text, const Orvel::Ptr<const Vantrel::Object>& object);

/// The report of the object that an Any holds; anything else in it reads as a null object.
void objectReportFromAny(TextBuilder& text, const Any& value);

/// The report of a class value's object.
void objectReportFromValue(TextBuilder& text, const Orvel::Value& value);

/// Appends a data property's line or block by the type of its array; a value of no known array type
/// writes nothing. True when statistics were printed.
bool printDataProperty(const Any& value, TextBuilder& text, const Orvel::String& name);

}  // namespace vtlcmd
