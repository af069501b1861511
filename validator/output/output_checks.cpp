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

void expectAnyReported(Session& session, const Any& any, const std::string& typeWord,
                       const std::string& text) {
  PortHost host(session);
  expect(host.reportAny(any), "the answer is true");
  expectReported(host, typeWord, text);
}

template <Registered T>
void anyIsReported(Session& session) {
  expectAnyReported(session, makeAny<T>(sampleValue<T>()), valueType<T>().name,
                    sampleOf<T>().report);
}

template <Registered T>
void valueIsReported(Session& session) {
  PortHost host(session);
  expect(host.reportValue(Orvel::makeValue<T>(sampleValue<T>())), "the answer is true");
  expectReported(host, valueType<T>().name, sampleOf<T>().report);
}

template <Registered T>
void zeroIsReported(Session& session) {
  expectAnyReported(session, makeAny<T>(zeroValue<T>()), valueType<T>().name,
                    sampleOf<T>().zeroReport);
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

void expectSuppressed(Session& session, const Any& inAny, const Orvel::Value& asValue,
                      const std::string& typeWord) {
  PortHost any(session, 0);
  expect(any.reportAny(inAny), "the answer for an Any is true");
  expectSuppressed(any, typeWord);
  PortHost value(session, 0);
  expect(value.reportValue(asValue), "the answer for a value is true");
  expectSuppressed(value, typeWord);
}

template <Registered T>
void allFormsAreSuppressed(Session& session) {
  const auto expectForm = [&](const auto& stored, unsigned depth) {
    expectSuppressed(session, makeAny(stored), Orvel::makeValue(stored),
                     arrayName(valueType<T>().name, depth));
  };
  const T sample = sampleValue<T>();
  expectForm(sample, 0);
  expectForm(nestedArray<T, 1>(sample), 1);
  expectForm(nestedArray<T, 2>(sample), 2);
  expectForm(nestedArray<T, 3>(sample), 3);
}

}  // namespace

void addOutputChecks(CheckList& checks) {
  forEachRegistered([&](const auto& row) {
    using T = TypeOf<decltype(row)>;
    addChecksOfType(
        checks, row.name,
        {{"output-any", "A {} in an Any is reported and recorded.", anyIsReported<T>},
         {"output-value", "A {} value is reported and recorded.", valueIsReported<T>},
         {"output-zero", "The zero of {} is reported and recorded.", zeroIsReported<T>},
         {"output-suppressed", "A print limit of 0 suppresses the text of {} in all forms.",
          allFormsAreSuppressed<T>}});
  });
}

}  // namespace vtlcmd::validator
