#include "floors/input_floor.h"
#include "rows/floor_row.h"
#include "rows/rows.h"
#include "rows/sample_texts.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::bench {
namespace {

template <Registered T>
TimedRow inputRow(const std::shared_ptr<PlugIn>& plugIn) {
  struct Setup : FloorSetup {
    using FloorSetup::FloorSetup;

    Orvel::Type type = Orvel::typeOf<T>();
    Any value;
    Any floorValue;
  };
  const auto setup = std::make_shared<Setup>(plugIn);
  if constexpr (!std::is_same_v<T, ObjectPtr>) {
    setup->host.inputValues.insert(setup->host.portName, {{}, sampleText<T>().c_str()});
  }
  return floorRow(
      std::string("setInputValue ") + valueType<T>().name, setup,
      [](Setup& s) { s.plugIn->translation().setInputValue(s.type, s.value, &s.host.input); },
      [](Setup& s) { setInputFloor<T>(s.type, s.floorValue, s.host.input, s.floor); });
}

}  // namespace

std::vector<TimedRow> inputRows() {
  const auto plugIn = std::make_shared<PlugIn>();
  std::vector<TimedRow> rows;
  forEachRow(registeredTypes,
             [&]<typename T>(const RegisteredType<T>&) { rows.push_back(inputRow<T>(plugIn)); });
  return rows;
}

}  // namespace vtlcmd::bench
