#include "module/foreign_values.h"

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

namespace vtlcmd::foreign_module {
namespace {

// Texts at addresses of their own, which only their content can match.
constexpr char intSpelling[] = "H";
constexpr char ownSpelling[] = "UCounted@ForeignModule@@";

constexpr Orvel::Internal::TypeInfo intTag = makeTag(intSpelling, 0, 0);
constexpr Orvel::Internal::TypeInfo rank1Tag = makeTag(intSpelling, 0, 1);
constexpr Orvel::Internal::TypeInfo rank4Tag = makeTag(intSpelling, 0, 4);
constexpr Orvel::Internal::TypeInfo uniqueTag{intSpelling, 1, 1, 0, 0, 0};
constexpr Orvel::Internal::TypeInfo countedTag = makeTag(ownSpelling, 0, 0);

Counts lives{0};

struct Counted {
  Counted() = default;
  Counted(const Counted&) = default;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { ++lives.ended; }
};

StoredArray<std::int32_t, 1> ones(std::uint64_t count) {
  auto array = Orvel::makeMutable<Orvel::Array<std::int32_t>>();
  for (std::uint64_t i = 0; i < count; ++i) array->append(1);
  return array;
}

template <typename Element>
Orvel::Ptr<Orvel::Array<Element>> wrapped(Element element) {
  auto array = Orvel::makeMutable<Orvel::Array<Element>>();
  array->append(std::move(element));
  return array;
}

}  // namespace

Any anyOf(std::int32_t value) { return makeTaggedAny<intTag>(value); }

Any anyOf(const Orvel::String& value) { return makeAny(value); }

Any anyOf(const Vantrel::Math::double4& value) { return makeAny(value); }

Any onesOf(std::uint64_t count, std::uint32_t rank) {
  const auto array = ones(count);
  switch (rank) {
    case 1:
      return makeTaggedAny<rank1Tag>(array);
    case 2:
      return makeAny(wrapped(array));
    case 3:
      return makeAny(wrapped(wrapped(array)));
    default:
      return makeTaggedAny<rank4Tag>(wrapped(wrapped(wrapped(array))));
  }
}

Any uniqueInt(std::int32_t value) { return makeTaggedAny<uniqueTag>(value); }

Any counted() { return makeTaggedAny<countedTag>(Counted{}); }

Counts counts() { return lives; }

}  // namespace vtlcmd::foreign_module
