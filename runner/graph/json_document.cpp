#include "graph/json_document.h"

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "graph/graph_error.h"
#include "text/library_text.h"
#include "text/text_place.h"

namespace vtlcmd::runner {
namespace {

using nlohmann::json;

/// The parser's sentence behind the last of the marks that precede it.
std::string sentenceOf(const json::exception& error, std::string_view mark) {
  const std::string_view text = error.what();
  const std::size_t start = text.find(mark);
  return std::string(start == std::string_view::npos ? text : text.substr(start + mark.size()));
}

/// Builds the document while it is parsed, so that it's known where an error is met. The library's
/// own parser with a callback looks at all elements of an array again whenever one of them ends.
class DocumentBuilder : public nlohmann::json_sax<json> {
 public:
  explicit DocumentBuilder(std::string_view text) : text_(text) {}

  json takeDocument() { return std::move(document_); }

  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(value); }
  bool number_unsigned(number_unsigned_t value) override { return add(value); }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  bool binary(binary_t& value) override { return add(std::move(value)); }

  bool string(string_t& value) override {
    refuseNul(value);
    return add(std::move(value));
  }

  bool start_object(std::size_t) override { return open(json::value_t::object); }
  bool start_array(std::size_t) override { return open(json::value_t::array); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool key(string_t& key) override {
    Level& level = levels_.back();
    level.member = nullptr;
    refuseNul(key);
    const auto [member, isNew] =
        level.container->get_ref<json::object_t&>().try_emplace(std::move(key));
    level.member = &*member;
    if (!isNew)
      throw GraphError(place(),
                       "the key " + inQuotes(member->first) + " stands twice in one object");
    return true;
  }

  bool parse_error(std::size_t byte, const std::string&, const json::exception& error) override {
    if (dynamic_cast<const json::parse_error*>(&error) == nullptr)
      throw GraphError(place(), sentenceOf(error, "] "));
    // The parser counts bytes from 1.
    throw GraphError(lineAndColumn(text_, byte == 0 ? 0 : byte - 1), sentenceOf(error, ": "));
  }

 private:
  /// An array or object that is still open.
  struct Level {
    json* container;
    /// Of an object, the one that is read; null before the first one.
    json::object_t::value_type* member = nullptr;
  };

  template <typename Value>
  json& put(Value&& value) {
    if (levels_.empty()) return document_ = std::forward<Value>(value);
    const Level& level = levels_.back();
    if (level.container->is_array())
      return level.container->emplace_back(std::forward<Value>(value));
    return level.member->second = std::forward<Value>(value);
  }

  template <typename Value>
  bool add(Value&& value) {
    put(std::forward<Value>(value));
    return true;
  }

  bool open(json::value_t kind) {
    levels_.push_back({&put(json(kind))});
    return true;
  }

  bool close() {
    levels_.pop_back();
    return true;
  }

  void refuseNul(const std::string& text) const {
    if (text.find('\0') != std::string::npos)
      throw GraphError(place(), "a text can't hold a NUL character");
  }

  /// Of the value that is read now.
  std::string place() const {
    std::string place = "$";
    for (const Level& level : levels_) {
      if (level.container->is_array()) {
        // An open container stands in its array already.
        const bool isInnermost = &level == &levels_.back();
        place += "[" + std::to_string(level.container->size() - (isInnermost ? 0 : 1)) + "]";
      } else if (level.member != nullptr && !level.member->first.empty()) {
        place += "." + level.member->first;
      }
    }
    return place;
  }

  std::string_view text_;
  json document_;
  std::vector<Level> levels_;
};

std::unique_ptr<const json> parse(std::string_view text) {
  // The parser takes it for the end of the document.
  const std::size_t nul = text.find('\0');
  if (nul != std::string_view::npos)
    throw GraphError(lineAndColumn(text, nul), "a NUL character can't stand here");
  DocumentBuilder builder(text);
  json::sax_parse(text.begin(), text.end(), &builder);
  return std::make_unique<const json>(builder.takeDocument());
}

}  // namespace

JsonDocument::JsonDocument(std::string_view text) : json_(parse(text)) {}

JsonDocument::~JsonDocument() = default;

}  // namespace vtlcmd::runner
