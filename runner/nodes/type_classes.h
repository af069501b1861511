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
/// Numbers and bools, single or in an array.
extern const TypeClass scalars;
/// The same with texts.
extern const TypeClass comparable;
/// An array of them.
extern const TypeClass comparableArray;
/// Bools, single or in an array.
extern const TypeClass conditions;
/// An array of bools.
extern const TypeClass conditionArray;
/// Numbers and vectors of them, single or in an array.
extern const TypeClass arithmetic;
/// An array of numbers or vectors.
extern const TypeClass arithmeticArray;
/// Numbers, vectors and bools, single or in an array.
extern const TypeClass convertible;
/// float and double, single or in an array.
extern const TypeClass floating;
/// Vectors, single or in an array.
extern const TypeClass vectors;
/// A single matrix of floats or doubles.
extern const TypeClass matrix;
extern const TypeClass text;
/// Texts, single or in an array.
extern const TypeClass texts;
/// A text that names a file.
extern const TypeClass path;
extern const TypeClass object;
extern const TypeClass time;
extern const TypeClass sceneInfo;

}  // namespace type_classes

}  // namespace vtlcmd::runner
