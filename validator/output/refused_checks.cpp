#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

void valueIsRefused(Session& session, const Orvel::Type& type, const std::string& element) {
  const std::string whole = type.getFullyQualifiedName().c_str();
  PortHost host(session);
  expect(!host.reportValue(Orvel::makeZero(type)), "the answer is false");
  expectLines("messages", host.messages(),
              {"progress Output port 'port' [" + whole + "]",
               "warning The TypeTranslation does not support getting a value of type '" + element +
                   "' for the Terminal output named 'port'."});
  expect(host.logger.fallbackEntry.outputs.empty(), "there is no record");
}

void anyIsRefused(Session& session, const Any& value) {
  PortHost host(session);
  expect(!host.reportAny(value), "the answer is false");
  expectLines("messages", host.messages(), {});
  expect(host.logger.fallbackEntry.outputs.empty(), "there is no record");
}

void typeIsRefused(Session& session, const std::string& name) {
  Orvel::Type type = Orvel::typeNamed(Orvel::String(name.c_str()));
  for (int depth = 0; depth < 3; ++depth) {
    valueIsRefused(session, type, name);
    anyIsRefused(session, Orvel::toAny(Orvel::makeZero(type)));
    type = Orvel::makeArrayType(type);
  }
}

void addRefusalsOf(CheckList& checks, const std::string& type) {
  addChecksOfType(checks, type,
                  {{"output-unsupported", "A value of {} gets a warning, in an Any silence.",
                    [type](Session& session) { typeIsRefused(session, type); }}});
}

void deepAnyIsRefused(Session& session) {
  Orvel::Type type = Orvel::typeOf<std::int32_t>();
  for (int depth = 0; depth < 4; ++depth) type = Orvel::makeArrayType(type);
  anyIsRefused(session, Orvel::toAny(Orvel::makeZero(type)));
}

}  // namespace

void addRefusedOutputChecks(CheckList& checks) {
  forEachRow(reportOnlyTypes, [&](const auto& row) { addRefusalsOf(checks, row.name); });
  forEachRow(inputOnlyTypes, [&](const auto& row) { addRefusalsOf(checks, row.name); });
  checks.push_back({"output-empty-any", "An empty Any is answered with false in silence.",
                    [](Session& session) { anyIsRefused(session, {}); }});
  checks.push_back({"output-deep-any", "An Any four arrays deep is answered with false in silence.",
                    deepAnyIsRefused});
  checks.push_back(
      {"output-unknown-struct", "A value of an unknown type gets a warning.", [](Session& session) {
         valueIsRefused(session, Orvel::makeStructType(Orvel::String("a 'b'"), {}), "a 'b'");
       }});
}

}  // namespace vtlcmd::validator
