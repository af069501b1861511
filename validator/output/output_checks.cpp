#include <array>

#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "checks/type_names.h"
#include "host/port_host.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

void expectReported(const PortHost& host, const std::string& typeWord, const std::string& text) {
  expectLines("messages", host.messages(),
              {"progress Output port 'port': (" + typeWord + ") " + text});
  const auto& outputs = host.logger.fallbackEntry.outputs;
  const auto record = outputs.find("port");
  expect(outputs.size() == 1 && record != outputs.end(), "the port has one record");
  expectText("the record's type", record->second.typeName, typeWord);
  expectText("the record's text", record->second.valueText, text);
  expect(record->second.valueShown, "the record says that the value is shown");
}

void anyIsReported(Session& session, const Any& any, const char* type, const char* report) {
  PortHost host(session);
  expect(host.reportAny(any), "the answer is true");
  expectReported(host, type, report);
}

void valueIsReported(Session& session, const Sample& sample) {
  PortHost host(session);
  expect(host.reportValue(sample.makeValue()), "the answer is true");
  expectReported(host, sample.type, sample.report);
}

void expectSuppressed(const PortHost& host, const std::string& typeWord) {
  expectLines("messages", host.messages(),
              {"progress Output port 'port': (" + typeWord + " output suppressed)"});
  const auto& outputs = host.logger.fallbackEntry.outputs;
  const auto record = outputs.find("port");
  expect(record != outputs.end(), "the port has a record");
  expectText("the record's type", record->second.typeName, typeWord);
  expect(!record->second.valueShown && record->second.valueText.empty(),
         "the record says that the value isn't shown");
}

void allFormsAreSuppressed(Session& session, const Sample& sample) {
  Orvel::Value element = sample.makeValue();
  for (unsigned rank = 0; rank <= 3; ++rank) {
    const std::string typeWord = arrayName(sample.type, rank);
    PortHost any(session, 0);
    expect(any.reportAny(sample.makeAny(rank)), "the answer for an Any is true");
    expectSuppressed(any, typeWord);
    PortHost value(session, 0);
    expect(value.reportValue(element), "the answer for a value is true");
    expectSuppressed(value, typeWord);
    element = Orvel::makeArray(element.getType(), std::array{element});
  }
}

}  // namespace

void addOutputChecks(CheckList& checks) {
  for (const Sample& sample : samples()) {
    addChecksOfType(
        checks, sample.type,
        {{"output-any", "A {} in an Any is reported and recorded.",
          [&](Session& session) {
            anyIsReported(session, sample.makeAny(0), sample.type, sample.report);
          }},
         {"output-value", "A {} value is reported and recorded.",
          [&](Session& session) { valueIsReported(session, sample); }},
         {"output-zero", "The zero of {} is reported and recorded.",
          [&](Session& session) {
            anyIsReported(session, sample.makeZero(), sample.type, sample.zeroReport);
          }},
         {"output-suppressed", "A print limit of 0 suppresses the text of {} in all forms.",
          [&](Session& session) { allFormsAreSuppressed(session, sample); }}});
  }
}

}  // namespace vtlcmd::validator
