#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/stand_in/make_string.h"

namespace Orvel {
namespace {

std::string_view viewOf(const char* text) noexcept {
  return text == nullptr ? std::string_view{} : std::string_view(text);
}

std::string_view viewOf(StringView view) noexcept { return {view.data, view.size}; }

/// A terminated copy; null for an empty text, so that an empty string owns nothing.
char* copyText(std::string_view text) {
  if (text.empty()) return nullptr;
  char* copy = new char[text.size() + 1];
  std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  return copy;
}

}  // namespace

template <>
struct Internal::Representation<String> {
  static String make(std::string_view text) { return {copyText(text), text.size()}; }
};

namespace {

String concatenate(std::string_view left, std::string_view right) {
  std::string text;
  text.reserve(left.size() + right.size());
  text.append(left).append(right);
  return Internal::Representation<String>::make(text);
}

}  // namespace

String::String() noexcept : text_(nullptr), size_(0) {}

String::String(const char* text) : text_(copyText(viewOf(text))), size_(viewOf(text).size()) {}

String::String(const String& other)
    : text_(copyText(viewOf(other.internal_string_view()))), size_(other.size_) {}

// The source owns nothing afterwards: a moved value's storage may go away without its destructor.
String::String(String&& other) noexcept
    : text_(std::exchange(other.text_, nullptr)), size_(std::exchange(other.size_, 0)) {}

String::~String() { delete[] text_; }

// The copy is complete before the old text goes, which may be the one assigned from.
String& String::operator=(const String& other) { return *this = String(other); }

String& String::operator=(String&& other) noexcept {
  String taken(std::move(other));
  std::swap(text_, taken.text_);
  std::swap(size_, taken.size_);
  return *this;
}

String& String::operator=(const char* text) { return *this = String(text); }

bool String::operator==(const String& other) const noexcept {
  return viewOf(internal_string_view()) == viewOf(other.internal_string_view());
}

bool String::operator==(const char* text) const noexcept {
  return viewOf(internal_string_view()) == viewOf(text);
}

std::int32_t String::compare(const String& other) const noexcept {
  return viewOf(internal_string_view()).compare(viewOf(other.internal_string_view()));
}

const char* String::c_str() const noexcept { return text_ == nullptr ? "" : text_; }

StringView String::internal_string_view() const noexcept { return {c_str(), size_}; }

String operator+(const String& left, const char* right) {
  return concatenate(viewOf(left), viewOf(right));
}

String operator+(const String& left, const String& right) {
  return concatenate(viewOf(left), viewOf(right));
}

String makeString(StringView text) { return Internal::Representation<String>::make(viewOf(text)); }

}  // namespace Orvel
