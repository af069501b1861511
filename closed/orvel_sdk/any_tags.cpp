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

}  // namespace

const TypeInfo& tagOf(const TypeRep& type) {
  const TypeRep& element = innermostOf(type);
  const TypeInfo* stored =
      element.storedIndex == TypeRep::notStored ? nullptr : &storedTags[element.storedIndex];
  if (stored != nullptr && type.depth == 0) return *stored;
  std::tuple key(stored == nullptr ? structSpelling(viewOf(element.name))
                                   : std::string(stored->name, stored->length),
                 stored == nullptr ? std::uint8_t{0} : stored->kind, type.depth);

  static std::mutex mutex;
  // Never ended: values may be looked at while the process exits.
  static auto& tags = *new std::map<decltype(key), TypeInfo>;
  const std::lock_guard lock(mutex);
  const auto [tag, isNew] = tags.try_emplace(std::move(key));
  const auto& [spelling, kind, rank] = tag->first;
  if (isNew) tag->second = vtlcmd::makeTag(spelling, kind, rank);
  return tag->second;
}

}  // namespace Orvel::Internal
