#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/object_builder.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

using Vantrel::Geometry::setComponentProperty;
using Vantrel::Geometry::setDataProperty;

Orvel::String text(const char* characters) { return characters; }

/// Reported in both forms and as an array's element.
void expectObjectReport(Session& session, const ObjectPtr& object, const std::string& report) {
  PortHost host(session, 1);
  expect(host.reportAny(makeAny(object)), "the Any is reported");
  expectText("line of the Any", host.lastText(), "Output port 'port': (Object) " + report);
  expect(host.reportValue(Orvel::makeValue(object)), "the value is reported");
  expectText("line of the value", host.lastText(), "Output port 'port': (Object) " + report);
  expect(host.reportAny(makeAny(arrayOf<ObjectPtr>({object}))), "the array is reported");
  expectText("line of the array", host.lastText(),
             "Output port 'port': (array<Object>) \n(1 out of 1 Object)[\n" + report + " ]\n");
}

void nullObject(Session& session) {
  expectObjectReport(session, {}, "{\n  No object produced, verify your inputs.\n}");
}

void emptyObject(Session& session) { expectObjectReport(session, Vantrel::createObject(), "{\n}"); }

const std::string idBlock = "  id: (3 int)\n  {\n     min: 1\n     max: 6\n     avg: 3\n  }\n";

void wholeObject(Session& session) {
  const auto object = Vantrel::createObject();
  setDataProperty(*object, text("id"), makeAny(arrayOf<std::int32_t>({1, 2, 6})));
  setDataProperty(*object, text("label"), makeAny(arrayOf<Orvel::String>({"a"})));
  setComponentProperty(*object, text("pieces"), 3);
  expectObjectReport(
      session, ObjectPtr(object.pointer, nullptr),
      "{\n  pieces: count: 3\n" + idBlock + "  label: {non supported Data Geo Property}\n}");
}

void componentsInOrder(Session& session) {
  const auto object = Vantrel::createObject();
  setComponentProperty(*object, text("z"), 4294967295U);
  setComponentProperty(*object, text("a"), 0);
  expectObjectReport(session, ObjectPtr(object.pointer, nullptr),
                     "{\n  z: count: 4294967295\n  a: count: 0\n}");
}

void unknownDataIsPassedOver(Session& session) {
  const auto object = Vantrel::createObject();
  setDataProperty(*object, text("none"), {});
  setDataProperty(*object, text("scalar"), makeAny<std::int32_t>(1));
  setDataProperty(*object, text("nested"), makeAny(nestedArray<std::int32_t, 2>(1)));
  setDataProperty(*object, text("objects"), makeAny(arrayOf<ObjectPtr>({{}})));
  setDataProperty(*object, text("id"), makeAny(arrayOf<std::int32_t>({1, 2, 6})));
  expectObjectReport(session, ObjectPtr(object.pointer, nullptr), "{\n" + idBlock + "}");
}

void plainPropertiesAreNotShown(Session& session) {
  const auto object = Vantrel::createObject();
  Vantrel::setProperty(*object, text("count"), makeAny(arrayOf<std::int32_t>({1})));
  expectObjectReport(session, ObjectPtr(object.pointer, nullptr), "{\n}");
}

void otherValueReadsAsNull(Session& session) {
  PortHost host(session);
  expect(host.setInput(Orvel::typeOf<ObjectPtr>(), false, makeAny<std::int32_t>(1)),
         "the answer is true");
  expectText("line", host.lastText(),
             "Set input port 'port': (Object) {\n  No object produced, verify your inputs.\n}");
}

/// An empty array of the element type as a data property.
void emptyDataProperty(Session& session, const Any& array, const std::string& type,
                       bool hasStatistics) {
  const auto object = Vantrel::createObject();
  setDataProperty(*object, text("p"), array);
  const std::string head = type == "bool" ? " (0 " : "(0 ";
  expectObjectReport(session, ObjectPtr(object.pointer, nullptr),
                     hasStatistics ? "{\n  p: " + head + type + ")\n  {\nempty array...  }\n}"
                                   : "{\n  p: {non supported Data Geo Property}\n}");
}

void addObjectsOf(CheckList& checks, const std::string& type, ArrayClass arrayClass,
                  Any (*makeEmptyArray)()) {
  const bool hasStatistics = arrayClass == ArrayClass::summarised;
  addChecksOfType(checks, type,
                  {{"object-data",
                    hasStatistics ? "A data property of {} has statistics."
                                  : "A data property of {} is told to be unsupported.",
                    [=](Session& session) {
                      emptyDataProperty(session, makeEmptyArray(), type, hasStatistics);
                    }}});
}

template <typename T>
Any emptyArray() {
  return makeAny(arrayOf<T>({}));
}

template <typename T>
void wrappingProperty(Session& session, std::vector<T> elements, const std::string& block) {
  const auto object = Vantrel::createObject();
  setDataProperty(*object, text("p"), makeAny(arrayOf<T>(elements)));
  expectObjectReport(session, ObjectPtr(object.pointer, nullptr), "{\n  p: " + block + "\n}");
}

}  // namespace

void addObjectChecks(CheckList& checks) {
  checks.push_back({"object-null", "A null object says that none was produced.", nullObject});
  checks.push_back({"object-empty", "An object without properties is two braces.", emptyObject});
  checks.push_back(
      {"object-whole", "Components come first, then data, in the library's order.", wholeObject});
  checks.push_back(
      {"object-components", "Components keep the library's order.", componentsInOrder});
  checks.push_back({"object-unknown-data", "Data of no known array type is passed over.",
                    unknownDataIsPassedOver});
  checks.push_back({"object-plain-properties", "What is no geometry property isn't shown.",
                    plainPropertiesAreNotShown});
  checks.push_back({"object-other-value", "Another type's value reads as a null object.",
                    otherValueReadsAsNull});
  checks.push_back(
      {"object-short-wraps", "The 16-bit sum of a short property wraps.", [](Session& session) {
         wrappingProperty<std::int16_t>(session, {32767, 1},
                                        "(2 short)\n  {\n     min: 1\n     max: "
                                        "32767\n     avg: -16384\n  }");
       }});
  checks.push_back(
      {"object-ushort-wraps", "The 16-bit sum of a ushort property wraps.", [](Session& session) {
         wrappingProperty<std::uint16_t>(session, {65535, 1},
                                         "(2 ushort)\n  {\n     min: 1\n     max: "
                                         "65535\n     avg: 0\n  }");
       }});
  for (const Sample& sample : samples()) {
    if (!sample.isObject())
      addObjectsOf(checks, sample.type, sample.arrayClass, sample.makeEmptyArray);
  }
  forEachRow(reportOnlyTypes, [&](const auto& row) {
    addObjectsOf(checks, row.name, row.arrayClass, emptyArray<TypeOf<decltype(row)>>);
  });
}

}  // namespace vtlcmd::validator
