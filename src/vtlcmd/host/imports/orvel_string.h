#pragma once

#include <cstdint>

#include "vtlcmd/host/imports/api.h"

namespace Orvel {

namespace Internal {
/// A library's own way to what a T keeps, defined by the library alone.
template <typename T>
struct Representation;
}  // namespace Internal

/// Characters that somebody else owns, read by length. Valid as long as the owner's text is.
struct StringView {
  const char* data;
  std::uint64_t size;
};

/// A string value of two machine words; the library owns the text, one for each string. Operations
/// on a constant string are [any thread].
class ORVEL_CORE_API String {
 public:
  /// Empty.
  String() noexcept;
  /// Copies a terminated string; null counts as empty. [may throw]
  String(const char* text);
  /// [may throw]
  String(const String& other);
  /// Leaves the source without memory of its own, so that its end may be left out.
  String(String&& other) noexcept;
  ~String();

  /// A string or a part of it may be assigned to itself. [may throw]
  String& operator=(const String& other);
  String& operator=(String&& other) noexcept;
  String& operator=(const char* text);

  /// Whole texts are compared: one with a NUL byte inside equals no terminated string. [no throw]
  bool operator==(const String& other) const noexcept;
  bool operator==(const char* text) const noexcept;

  /// Negative, zero or positive; the order of the texts is the library's. [no throw]
  std::int32_t compare(const String& other) const noexcept;

  /// The text, terminated; never null, valid until the string changes or ends. [no throw]
  const char* c_str() const noexcept;

  /// The text by length, valid until the string changes or ends. [no throw]
  operator StringView() const noexcept { return internal_string_view(); }

 private:
  friend struct Internal::Representation<String>;
  /// Takes over what the library made.
  String(char* text, std::uint64_t size) noexcept : text_(text), size_(size) {}

  StringView internal_string_view() const noexcept;

  char* text_;
  std::uint64_t size_;
};

static_assert(sizeof(String) == 16 && alignof(String) == 8);

/// A new string of both texts, NUL bytes of a string included. [any thread, may throw]
ORVEL_CORE_API String operator+(const String& left, const char* right);
ORVEL_CORE_API String operator+(const String& left, const String& right);

}  // namespace Orvel
