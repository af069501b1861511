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

template <Registered T>
void anyIsReported(Session& session) {
  PortHost host(session);
  expect(host.reportAny(makeAny<T>(sampleValue<T>())), "the answer is true");
  expectReported(host, valueType<T>().name, sampleOf<T>().report);
}

template <Registered T>
void valueIsReported(Session& session) {
  PortHost host(session);
  expect(host.reportValue(Orvel::makeValue<T>(sampleValue<T>())), "the answer is true");
  expectReported(host, valueType<T>().name, sampleOf<T>().report);
}

template <Registered T>
void zeroIsReported(Session& session) {
  PortHost host(session);
  expect(host.reportAny(makeAny<T>(zeroValue<T>())), "the answer is true");
  expectReported(host, valueType<T>().name, sampleOf<T>().zeroReport);
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

template <Registered T, std::uint32_t Rank>
void rankIsSuppressed(Session& session) {
  const std::string typeWord = arrayName(valueType<T>().name, Rank);
  StoredArray<T, Rank> stored;
  if constexpr (Rank == 0) {
    stored = sampleValue<T>();
  } else {
    stored = nestedArray<T, Rank>(sampleValue<T>());
  }
  PortHost any(session, 0);
  expect(any.reportAny(makeAny(stored)), "the answer for an Any is true");
  expectSuppressed(any, typeWord);
  PortHost value(session, 0);
  expect(value.reportValue(Orvel::makeValue(stored)), "the answer for a value is true");
  expectSuppressed(value, typeWord);
}

template <Registered T>
void allFormsAreSuppressed(Session& session) {
  rankIsSuppressed<T, 0>(session);
  rankIsSuppressed<T, 1>(session);
  rankIsSuppressed<T, 2>(session);
  rankIsSuppressed<T, 3>(session);
}

template <Registered T>
void addReportsOf(CheckList& checks) {
  const std::string type = valueType<T>().name;
  const std::string name = nameOfType(type);
  checks.push_back({"output-any-" + name, "A " + type + " in an Any is reported and recorded.",
                    anyIsReported<T>});
  checks.push_back({"output-value-" + name, "A " + type + " value is reported and recorded.",
                    valueIsReported<T>});
  checks.push_back({"output-zero-" + name, "The zero of " + type + " is reported and recorded.",
                    zeroIsReported<T>});
  checks.push_back({"output-suppressed-" + name,
                    "A print limit of 0 suppresses the text of " + type + " in all forms.",
                    allFormsAreSuppressed<T>});
}

}  // namespace

void addOutputChecks(CheckList& checks) {
  forEachRegistered([&](const auto& row) { addReportsOf<TypeOf<decltype(row)>>(checks); });
}

}  // namespace vtlcmd::validator
