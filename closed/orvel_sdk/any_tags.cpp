#include "orvel_sdk/any_tags.h"

#include <array>
#include <map>
#include <mutex>
#include <string>
#include <tuple>

#include "vtlcmd/host/type_tags.h"

namespace Orvel::Internal {
namespace {

/// By place in `storedTypes`; those of arrays have other ranks.
constexpr std::array storedTags = std::apply(
    [](const auto&... row) {
      return std::array{vtlcmd::makeTag(row.tagSpelling, row.tagKind, 0)...};
    },
    storedTypes);

/// "Outer::Inner" is spelled "UInner@Outer@@".
std::string structSpelling(std::string_view name) {
  static constexpr std::string_view scope = "::";
  std::string spelling = "U";
  for (std::size_t at; (at = name.rfind(scope)) != std::string_view::npos;
       name = name.substr(0, at)) {
    spelling.append(name.substr(at + scope.size())) += '@';
  }
  return spelling.append(name) + "@@";
}

/// Spelling, kind and rank.
using TagKey = std::tuple<std::string, std::uint8_t, std::uint32_t>;

TagKey keyOf(const TypeRep& type) {
  const TypeRep& element = innermostOf(type);
  if (element.storedIndex == TypeRep::notStored)
    return {structSpelling(viewOf(element.name)), 0, type.depth};
  const TypeInfo& single = storedTags[element.storedIndex];
  return {{single.name, single.length}, single.kind, type.depth};
}

}  // namespace

const TypeInfo& tagOf(const TypeRep& type) {
  if (type.depth == 0 && type.storedIndex != TypeRep::notStored)
    return storedTags[type.storedIndex];
  TagKey key = keyOf(type);

  static std::mutex mutex;
  // Never ended: values may be looked at while the process exits.
  static auto& tags = *new std::map<TagKey, TypeInfo>;
  const std::lock_guard lock(mutex);
  const auto [tag, isNew] = tags.try_emplace(std::move(key));
  const auto& [spelling, kind, rank] = tag->first;
  if (isNew) tag->second = vtlcmd::makeTag(spelling, kind, rank);
  return tag->second;
}

}  // namespace Orvel::Internal
