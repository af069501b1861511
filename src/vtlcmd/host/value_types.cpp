#include "vtlcmd/host/value_types.h"

// Ties each row to its type: the facts that a row repeats must be those of T.
namespace vtlcmd {
namespace {

constexpr bool endsInValueOf(std::string_view ending, std::string_view component) {
  return ending.starts_with("' to a") && ending.ends_with(" value.") &&
         ending.substr(0, ending.size() - 7).ends_with(component) &&
         ending[ending.size() - 8 - component.size()] == ' ';
}

/// "Math::float3" is spelled "Ufloat3@Math@Vantrel@@".
constexpr bool isMathSpelling(std::string_view spelling, std::string_view name) {
  return name.starts_with("Math::") && spelling.starts_with('U') &&
         spelling.substr(1).starts_with(name.substr(6)) &&
         spelling.substr(name.size() - 5) == "@Math@Vantrel@@";
}

template <typename T>
constexpr bool agrees(const RegisteredType<T>& row) {
  const std::string_view name = row.name;
  if constexpr (std::is_arithmetic_v<T>) {
    return row.components == 1 && row.tagKind == 0 && endsInValueOf(row.parseErrorEnd, name) &&
           (name.starts_with('u') == (std::is_unsigned_v<T> && !std::is_same_v<T, bool>));
  } else if constexpr (requires { T::componentCount; }) {
    return row.components == T::componentCount && row.tagKind == 0 &&
           std::string_view(row.parseErrorEnd) ==
               valueType<typename T::ComponentType>().parseErrorEnd &&
           isMathSpelling(row.tagSpelling, name);
  } else {
    return row.parseErrorEnd == nullptr && row.arrayClass == ArrayClass::listed &&
           row.tagSpelling.starts_with('V') &&
           row.tagKind == (std::is_same_v<T, ObjectPtr> ? 2 : 0) &&
           row.components == (std::is_same_v<T, ObjectPtr> ? 0 : 1);
  }
}

template <typename T>
constexpr bool agrees(const ReportOnlyType<T>& row) {
  return row.tagKind == 0 && (std::is_arithmetic_v<T> || isMathSpelling(row.tagSpelling, row.name));
}

template <typename List>
constexpr bool allAgree(const List& list) {
  return std::apply([](const auto&... row) { return (agrees(row) && ...); }, list);
}

static_assert(allAgree(registeredTypes));
static_assert(allAgree(reportOnlyTypes));

static_assert(storedInPlace<Math::double3> && !storedInPlace<Math::double4>);
static_assert(!storedInPlace<Vantrel::Simulation::Time>);
static_assert(!storedInPlace<Vantrel::File::Project::SceneInfo>);
static_assert(storedInPlace<ObjectPtr> && storedInPlace<Orvel::String>);

}  // namespace
}  // namespace vtlcmd
