#include "floors/output_floor.h"
#include "rows/floor_row.h"
#include "rows/rows.h"
#include "rows/sample_texts.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::bench {
namespace {

template <Registered T>
TimedRow anyRow(const std::shared_ptr<PlugIn>& plugIn) {
  struct Setup : FloorSetup {
    using FloorSetup::FloorSetup;

    Any value = makeAny(sampleValue<T>());
  };
  const auto setup = std::make_shared<Setup>(plugIn);
  return floorRow(
      std::string("getOutputAny ") + valueType<T>().name, setup,
      [](Setup& s) { s.plugIn->translation().getOutputAny(s.value, &s.host.output); },
      [](Setup& s) { reportAnyFloor<T>(s.value, s.host.output, s.floor); });
}

template <Registered T>
TimedRow valueRow(const std::shared_ptr<PlugIn>& plugIn) {
  struct Setup : FloorSetup {
    using FloorSetup::FloorSetup;

    Orvel::Value value = Orvel::makeValue(sampleValue<T>());
  };
  const auto setup = std::make_shared<Setup>(plugIn);
  return floorRow(
      std::string("getOutputValue ") + valueType<T>().name, setup,
      [](Setup& s) { s.plugIn->translation().getOutputValue(s.value, &s.host.output); },
      [](Setup& s) { reportValueFloor<T>(s.value, s.host.output, s.floor); });
}

}  // namespace

std::vector<TimedRow> outputRows() {
  const auto plugIn = std::make_shared<PlugIn>();
  std::vector<TimedRow> rows;
  forEachRow(registeredTypes,
             [&]<typename T>(const RegisteredType<T>&) { rows.push_back(anyRow<T>(plugIn)); });
  forEachRow(registeredTypes,
             [&]<typename T>(const RegisteredType<T>&) { rows.push_back(valueRow<T>(plugIn)); });
  return rows;
}

}  // namespace vtlcmd::bench
