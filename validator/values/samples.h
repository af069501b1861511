#pragma once

#include <cstddef>
#include <span>

#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::validator {

/// A registered type as checks see it: a value to put through a plug-in, and its texts. The
/// functions throw std::bad_alloc.
struct Sample {
  const char* type;
  std::size_t components;
  ArrayClass arrayClass;
  /// Ends the message about a text that doesn't parse.
  const char* parseErrorEnd;
  /// What a port of the type takes; null for an object, which has no text form.
  const char* text;
  /// How the value reads in a report.
  const char* report;
  /// A text that the type refuses; null where it takes any.
  const char* badText;
  /// What the bad text's message quotes.
  const char* badPiece;
  const char* zeroReport;

  Orvel::Type (*makeType)();
  /// The value of the text, a new object for `Object`, alone or within 1 to 3 arrays of one
  /// element.
  Any (*makeAny)(std::uint32_t rank);
  Orvel::Value (*makeValue)();
  Any (*makeZero)();
  Any (*makeEmptyArray)();
  /// An array of two empty ones.
  Any (*makeEmptyRows)();
  /// Whether both hold this type, and the same: objects when both or neither are there.
  bool (*holdSame)(const Any&, const Any&);

  bool isObject() const { return text == nullptr; }
};

/// Of each registered type, in the order of registration.
std::span<const Sample> samples();

}  // namespace vtlcmd::validator
