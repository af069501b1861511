#include <cstdint>
#include <type_traits>

#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "element_generator.h"
#include "host/port_host.h"
#include "statistics_model.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/geometry_builder.h"

namespace vtlcmd::validator {
namespace {

constexpr int arrayCount = 100;

/// An array of random elements, and its block by the model.
template <typename T>
struct Drawn {
  Orvel::Ptr<Orvel::Array<T>> array;
  std::string block;
};

template <typename T>
Drawn<T> draw(oracle::RandomSource& random, std::size_t count) {
  if constexpr (std::is_same_v<T, bool>) {
    auto bytes = oracle::randomElements<std::uint8_t>(random, count);
    // Any other byte would be no bool in C++.
    for (std::uint8_t& byte : bytes) byte &= 1U;
    return {arrayOf<bool>({bytes.begin(), bytes.end()}), oracle::boolStatisticsModel(bytes)};
  } else if constexpr (std::is_arithmetic_v<T>) {
    const auto elements = oracle::randomElements<T>(random, count);
    return {arrayOf<T>(elements), oracle::statisticsModel<T>(elements, oracle::reportPrecision)};
  } else {
    constexpr std::size_t width = T::componentCount;
    const auto components = oracle::randomElements<float>(random, count * width);
    std::vector<T> elements(count);
    for (std::size_t i = 0; i < components.size(); ++i)
      elements[i / width].components[i % width] = components[i];
    return {arrayOf<T>(elements),
            oracle::vectorStatisticsModel(components, width, oracle::reportPrecision)};
  }
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the linter loses track of use counts

/// An addition of two operands that are no numbers may give either, so the average's sign is open.
std::string withoutNanSigns(std::string text) {
  std::size_t at = text.find("avg: ");
  while ((at = text.find("-nan", at)) != std::string::npos) text.erase(at, 1);
  return text;
}

template <typename T>
void blocksAgree(Session& session) {
  oracle::RandomSource random(session.seed());
  for (int i = 0; i < arrayCount; ++i) {
    const Drawn<T> drawn = draw<T>(random, oracle::randomCount(random) + 1);
    const auto object = Vantrel::createObject();
    Vantrel::Geometry::setDataProperty(*object, Orvel::String("p"), makeAny(drawn.array));
    PortHost host(session);
    expect(host.reportAny(makeAny(ObjectPtr(object.pointer, nullptr))), "the object is reported");
    expectText("array " + std::to_string(i) + " of seed " + std::to_string(session.seed()),
               withoutNanSigns(host.lastText()),
               withoutNanSigns("Output port 'port': (Object) {\n  p: " + drawn.block + "\n}"));
  }
}

template <typename T>
void addRandomArraysOf(CheckList& checks, const std::string& type) {
  addChecksOfType(
      checks, type,
      {{"random-array", "Random arrays of {} have the block of an exact model.", blocksAgree<T>}});
}

}  // namespace

void addRandomArrayChecks(CheckList& checks) {
  forEachRow(registeredTypes, [&](const auto& row) {
    using T = TypeOf<decltype(row)>;
    constexpr bool isSummarised = valueType<T>().arrayClass == ArrayClass::summarised;
    if constexpr (isSummarised) addRandomArraysOf<T>(checks, row.name);
  });
  addRandomArraysOf<std::int16_t>(checks, "short");
  addRandomArraysOf<std::uint16_t>(checks, "ushort");
}

}  // namespace vtlcmd::validator
