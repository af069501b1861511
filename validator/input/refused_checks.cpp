#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "vtlcmd/stand_in/make_string.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

void typeIsRefused(Session& session, const Orvel::Type& type, bool isJobPort) {
  const std::string name = type.getFullyQualifiedName().c_str();
  PortHost host(session);
  host.giveText("1");
  host.giveJobText("1");
  host.value = makeAny<std::int32_t>(5);
  expect(!host.setInput(type, isJobPort), "the answer is false");
  const auto* held = anyCast<std::int32_t>(&host.value);
  expect(held != nullptr && *held == 5, "the result is as it was");
  expectLines(
      "messages", host.messages(),
      {std::string("progress ") + (isJobPort ? "Job" : "Input") + " port 'port' [" + name + "]",
       "critical The TypeTranslation does not support setting a value of type '" + name +
           "' for the " + (isJobPort ? "Job" : "input") + " port named 'port'."});
}

/// Of names that look like known ones.
constexpr const char* unknownNames[]{
    "Int", "int ", " int", "inT", "Math::float5", "float3", "Simulation", "File::Project::Scene",
    ""};

void unknownNamesAreRefused(Session& session) {
  for (const char* name : unknownNames)
    typeIsRefused(session, Orvel::makeStructType(Orvel::String(name), {}), false);
}

void bothMapsMayBeEmpty(Session& session) {
  PortHost host(session);
  expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the answer is true");
}

void namesCompareExactly(Session& session) {
  PortHost host(session);
  for (const char* other : {"Port", "port ", "por", "ports", ""})
    host.inputValues.insert(other, {{}, "7"});
  expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the answer is true");
  const auto* held = anyCast<std::int32_t>(&host.value);
  expect(held != nullptr && *held == 0, "no other port's text is taken");
}

void manyPortsAreFound(Session& session) {
  PortHost host(session);
  constexpr std::int32_t count = 2000;
  for (std::int32_t i = 0; i < count; ++i) {
    host.inputValues.insert(std::to_string(i).c_str(), {{}, std::to_string(i).c_str()});
  }
  for (std::int32_t i = 0; i < count; ++i) {
    host.name = std::to_string(i).c_str();
    expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the answer is true");
    const auto* held = anyCast<std::int32_t>(&host.value);
    expect(held != nullptr && *held == i, "each port gets its own text");
  }
}

void textEndsAtItsNul(Session& session) {
  PortHost host(session);
  host.giveText(Orvel::makeString({"12\0x", 4}));
  expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the answer is true");
  expectLines("messages", host.messages(), {"verbose Set input port 'port': (int) 12"});
}

void emptyTextIsAText(Session& session) {
  PortHost host(session);
  host.giveText("");
  expect(host.setInput(Orvel::typeOf<Orvel::String>(), false, makeAny(Orvel::String("default"))),
         "the answer is true");
  expectLines("messages", host.messages(), {"verbose Set input port 'port': (string) \"\""});
}

void quotesStandBare(Session& session) {
  PortHost host(session);
  host.name = "it's \"x\"";
  host.giveText("1\"2'3\n");
  expect(!host.setInput(Orvel::typeOf<float>()), "the answer is false");
  expectLines("messages", host.messages(),
              {"error Input port 'it's \"x\"' (float): Unable to convert '1\"2'3\n' to a float "
               "value."});
}

void addRefusalOf(CheckList& checks, const char* type) {
  addChecksOfType(checks, type,
                  {{"input-unsupported", "A port of {} is refused with two messages.",
                    [type](Session& session) {
                      const Orvel::String name = type;
                      typeIsRefused(session, Orvel::typeNamed(name), false);
                      typeIsRefused(session, Orvel::typeNamed(name), true);
                    }}});
}

}  // namespace

void addRefusedInputChecks(CheckList& checks) {
  forEachRow(reportOnlyTypes, [&](const auto& row) { addRefusalOf(checks, row.name); });
  checks.push_back({"input-unknown-names", "Names that only look like known ones are refused.",
                    unknownNamesAreRefused});
  checks.push_back({"input-empty-maps", "Maps without any text are legal.", bothMapsMayBeEmpty});
  checks.push_back({"input-port-names", "Port names compare exactly.", namesCompareExactly});
  checks.push_back(
      {"input-many-ports", "Each of many ports gets its own text.", manyPortsAreFound});
  checks.push_back({"input-nul", "A number's text ends at its first NUL byte.", textEndsAtItsNul});
  checks.push_back(
      {"input-empty-text", "An empty text is a text, not a missing one.", emptyTextIsAText});
  checks.push_back(
      {"input-quotes", "Names and texts stand in messages as they are.", quotesStandBare});
}

}  // namespace vtlcmd::validator
