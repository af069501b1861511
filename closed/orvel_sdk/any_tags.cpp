#include "orvel_sdk/any_tags.h"

#include <array>
#include <map>
#include <mutex>
#include <string>
#include <tuple>

#include "vtlcmd/host/type_tags.h"

namespace Orvel::Internal {
namespace {

struct TagStart {
  std::string_view spelling;
  std::uint8_t kind;
};

/// By place in `storedTypes`.
constexpr std::array storedTagStarts = std::apply(
    [](const auto&... row) {
      return std::array{TagStart{row.tagSpelling, row.tagKind}...};
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
  const bool stored = element.storedIndex != TypeRep::notStored;
  std::tuple key(stored ? std::string(storedTagStarts[element.storedIndex].spelling)
                        : structSpelling(viewOf(element.name)),
                 stored ? storedTagStarts[element.storedIndex].kind : std::uint8_t{0}, type.depth);

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
