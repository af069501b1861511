#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vtlcmd::runner {

/// A JSON value that isn't made of others; nothing for an array or object. Whole numbers that
/// aren't below zero are unsigned. The text lies in the document.
using JsonScalar = std::variant<std::monostate, std::nullptr_t, bool, std::uint64_t, std::int64_t,
                                double, std::string_view>;

/// A JSON value together with where it stands, read with the types that the graph file wants. All
/// readers throw GraphError at the place.
class JsonPlace {
 public:
  /// The root. The document must outlive every place in it.
  explicit JsonPlace(const nlohmann::json& document) : JsonPlace(document, "$") {}

  const std::string& place() const noexcept { return place_; }

  /// Refuses a value that is no object, and any member whose name isn't listed.
  void allowMembers(std::initializer_list<std::string_view> names) const;

  std::optional<JsonPlace> member(std::string_view name) const;
  JsonPlace requiredMember(std::string_view name) const;

  /// The elements of the array that stands under `name`; none when there is no such member.
  std::vector<JsonPlace> listMember(std::string_view name) const;

  std::vector<JsonPlace> elements() const;
  /// Key and value of each member, in byte order of the keys.
  std::vector<std::pair<std::string, JsonPlace>> members() const;

  bool isArray() const noexcept;
  /// Of an array or object.
  std::size_t elementCount() const noexcept;

  JsonScalar scalar() const;
  const std::string& text() const;
  /// A text that can name something: not empty and without control characters.
  const std::string& name() const;

  /// The value as JSON without blanks, and a short excerpt of it for a message.
  std::string json() const;
  std::string excerpt() const;

  [[noreturn]] void fail(const std::string& text) const;

 private:
  JsonPlace(const nlohmann::json& value, std::string place)
      : value_(&value), place_(std::move(place)) {}

  const nlohmann::json* value_;
  std::string place_;
};

}  // namespace vtlcmd::runner
