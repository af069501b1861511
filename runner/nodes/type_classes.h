#pragma once

#include <string_view>

#include "values/value_type.h"

namespace vtlcmd::runner {

/// A set of types that a node's parameter takes.
struct TypeClass {
  /// Completes "takes ...".
  std::string_view words;
  bool (*contains)(const ValueType&);
};

namespace type_classes {

extern const TypeClass any;
extern const TypeClass anyArray;
/// A single int, uint, long or ulong.
extern const TypeClass integer;
/// A single number or bool.
extern const TypeClass scalar;
/// Numbers and vectors of them, single or in an array.
extern const TypeClass arithmetic;
/// The same with bool.
extern const TypeClass convertible;
/// float and double, single or in an array.
extern const TypeClass floating;
/// Vectors, single or in an array.
extern const TypeClass vectors;
extern const TypeClass text;
/// A text that names a file.
extern const TypeClass path;
extern const TypeClass object;
extern const TypeClass time;
extern const TypeClass sceneInfo;

}  // namespace type_classes

}  // namespace vtlcmd::runner
