#include "rows/floor_row.h"
#include "rows/rows.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::bench {
namespace {

using Strings = Orvel::Array<Orvel::String>;

struct Setup : FloorSetup {
  Setup(std::uint32_t printLimit, Orvel::Value strings)
      : FloorSetup(std::make_shared<PlugIn>(), printLimit), value(std::move(strings)) {}

  Orvel::Value value;
  Any any = Orvel::toAny(value);
};

std::string listHead(std::uint64_t size) {
  const std::string number = std::to_string(size);
  return "\n(" + number + " out of " + number + " string)[\n";
}

/// Writes the list with the element's text that `append(text, index)` adds, and reports it.
template <typename Append>
void reportList(Setup& setup, std::uint64_t size, const char* typeWord, Append append) {
  std::string text = listHead(size);
  for (std::uint64_t i = 0; i < size; ++i) {
    text += '"';
    append(text, i);
    text += i + 1 < size ? "\",\n" : "\"";
  }
  text += " ]\n";
  setup.floor.report(setup.host.portName.c_str(), typeWord, text);
}

/// Each element is copied into an Any of its own.
void anyFloor(Setup& setup) {
  if (!setup.floor.tables.byTag.contains(&setup.any.type())) return;
  const Strings& strings = **anyCast<StoredArray<Orvel::String, 1>>(&setup.any);
  reportList(setup, strings.size, "array<string>", [&](std::string& text, std::uint64_t i) {
    const Any element = makeAny(strings[i]);
    text += anyCast<Orvel::String>(&element)->c_str();
  });
}

/// Each element is a value of its own, which gives a copy of the string.
void valueFloor(Setup& setup) {
  const Orvel::Type type = setup.value.getType();
  const Orvel::String elementName = Orvel::ArrayType(type).getElementType().getFullyQualifiedName();
  if (!setup.floor.tables.byName.contains(elementName)) return;
  Orvel::ArrayValue array(setup.value);
  reportList(
      setup, array.size(), type.getFullyQualifiedName().c_str(),
      [&](std::string& text, std::uint64_t i) { text += array.getElement(i).getString().c_str(); });
}

std::shared_ptr<Setup> setupOf(std::size_t size) {
  auto strings = Orvel::makeMutable<Strings>();
  for (std::size_t i = 0; i < size; ++i) strings->append(("element " + std::to_string(i)).c_str());
  return std::make_shared<Setup>(static_cast<std::uint32_t>(size),
                                 Orvel::makeValue(Orvel::Ptr<Strings>(std::move(strings))));
}

TimedRow listRow(TimedRow row) {
  row.goal = 1.5;
  row.calls = 1;
  row.pairs = 7;
  return row;
}

}  // namespace

std::vector<TimedRow> stringListRows(const Scale& scale) {
  const std::string size = std::to_string(scale.strings) + " strings";
  const auto any = [](Setup& s) { s.plugIn->translation().getOutputAny(s.any, &s.host.output); };
  const auto value = [](Setup& s) {
    s.plugIn->translation().getOutputValue(s.value, &s.host.output);
  };
  return {listRow(floorRow("getOutputAny " + size, setupOf(scale.strings), any, &anyFloor)),
          listRow(floorRow("getOutputValue " + size, setupOf(scale.strings), value, &valueFloor))};
}

}  // namespace vtlcmd::bench
