#pragma once

#include <cstdint>

#include "host/imports/api.h"

namespace Orvel {

/// Characters that somebody else owns, read by length. Valid as long as the owner's text is.
struct StringView {
  const char* data;
  std::uint64_t size;
};

/// A string value of two machine words; the library owns the text.
class ORVEL_CORE_API String {
 public:
  String() noexcept;
  /// Copies a terminated string; null counts as empty.
  String(const char* text);
  /// Copies by length, NUL bytes included. For hosts: the plug-in comes from terminated text only.
  explicit String(StringView text);
  String(const String& other);
  String(String&& other) noexcept;
  ~String();

  String& operator=(const String& other);
  String& operator=(String&& other) noexcept;
  String& operator=(const char* text);

  /// Whole texts are compared: one with a NUL byte inside equals no terminated string.
  bool operator==(const String& other) const noexcept;
  bool operator==(const char* text) const noexcept;

  /// Negative, zero or positive; the order of the texts is the library's.
  std::int32_t compare(const String& other) const noexcept;

  /// The text, terminated; never null, valid until the string changes or ends.
  const char* c_str() const noexcept;

  operator StringView() const noexcept { return internal_string_view(); }

 private:
  StringView internal_string_view() const noexcept;

  char* text_;
  std::uint64_t size_;
};

static_assert(sizeof(String) == 16 && alignof(String) == 8);

ORVEL_CORE_API String operator+(const String& left, const char* right);
ORVEL_CORE_API String operator+(const String& left, const String& right);

}  // namespace Orvel
