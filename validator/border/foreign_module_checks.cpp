#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "module/foreign_values.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

using namespace foreign_module;

void expectReport(Session& session, const Any& value, const std::string& text) {
  PortHost host(session);
  expect(host.reportAny(value), "the Any is reported");
  expectText("line", host.lastText(), "Output port 'port': " + text);
}

void valuesAreReported(Session& session) {
  expectReport(session, anyOf(7), "(int) 7");
  expectReport(session, anyOf(Orvel::String("x")), "(string) \"x\"");
  expectReport(session, anyOf(Vantrel::Math::double4{{1, 2, 3, 4}}),
               "(Math::double4) {1, 2, 3, 4}");
}

void arraysAreReported(Session& session) {
  expectReport(session, onesOf(2, 1),
               "(array<int>) (2 int)\n  {\n     min: 1\n     max: 1\n     avg: 1\n  }");
  expectReport(session, onesOf(0, 2),
               "(array<array<int>>) \n(1 out of 1 int)[\n(0 out of 0 int) ]\n");
}

void deepArraysAreUnknown(Session& session) {
  PortHost host(session);
  expect(!host.reportAny(onesOf(1, 4)), "an array four deep is answered with false");
  expectLines("messages", host.messages(), {});
}

void uniqueTagsAreRead(Session& session) {
  // Only two unique tags are compared by address, and the plug-in's are none.
  expectReport(session, uniqueInt(3), "(int) 3");
}

void defaultsAreCopied(Session& session) {
  PortHost host(session);
  expect(host.setInput(Orvel::typeOf<std::int32_t>(), false, anyOf(7)), "the answer is true");
  expect(host.lastText() == "Set input port 'port': (int) 7", "the value line shows the default");
  expect(host.setInput(Orvel::typeOf<Math::double4>(), false,
                       anyOf(Vantrel::Math::double4{{1, 2, 3, 4}})),
         "the answer is true");
  const auto* held = anyCast<Math::double4>(&host.value);
  expect(held != nullptr && *held == Math::double4{{1, 2, 3, 4}}, "the result is a whole copy");
}

void ownTypesEndOnce(Session& session) {
  const Any value = counted();
  const Counts before = counts();
  {
    PortHost host(session);
    expect(!host.reportAny(value), "an unknown type is answered with false");
    expect(host.setInput(Orvel::typeOf<std::int32_t>(), false, value), "the default is copied");
    host.giveText("1");
    expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the old value is replaced");
  }
  // The record's default and the result.
  expect(counts().ended - before.ended == 2, "each copy is ended once");
}

void mixedSwaps(Session& session) {
  PortHost host(session);
  host.giveText("1,2,3,4");
  for (int round = 0; round < 3; ++round) {
    host.value = anyOf(Orvel::String("a text that is too long for a few words in place"));
    expect(host.setInput(Orvel::typeOf<Math::double4>()), "the answer is true");
    const auto* held = anyCast<Math::double4>(&host.value);
    expect(held != nullptr && held->components[3] == 4, "the result holds the vector");
  }
}

}  // namespace

void addForeignModuleChecks(CheckList& checks) {
  checks.push_back({"foreign-module-values", "Values with another module's managers are reported.",
                    valuesAreReported});
  checks.push_back({"foreign-module-arrays",
                    "Arrays with another module's tags, equal by content, are reported.",
                    arraysAreReported});
  checks.push_back({"foreign-module-deep", "A tag of rank 4 is answered with false in silence.",
                    deepArraysAreUnknown});
  checks.push_back(
      {"foreign-module-unique", "A tag is looked up by its content.", uniqueTagsAreRead});
  checks.push_back(
      {"foreign-module-defaults", "Defaults of another module are copied.", defaultsAreCopied});
  checks.push_back(
      {"foreign-module-own-type", "Values of an unknown type are ended once.", ownTypesEndOnce});
  checks.push_back(
      {"foreign-module-old-value", "Another module's old value gives way.", mixedSwaps});
}

}  // namespace vtlcmd::validator
