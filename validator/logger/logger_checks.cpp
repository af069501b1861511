#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

/// One call of each kind that writes messages.
void callAll(PortHost& host) {
  host.setInput(Orvel::typeOf<std::int32_t>());
  host.setInput(Orvel::typeOf<Math::float2x2>());
  host.giveText("abc");
  host.setInput(Orvel::typeOf<std::int32_t>());
  host.reportAny(makeAny(true));
  host.reportValue(Orvel::makeValue(std::int16_t{1}));
}

void sourceIsOwn(Session& session) {
  PortHost host(session);
  callAll(host);
  expect(host.logger.messages.size() == 8, "there are eight messages");
  for (const LogMessage& message : host.logger.messages) {
    expect(message.source == vtlcmdSource, "the source is 0");
    expect(message.text.empty() || message.text.back() != '\n', "no line end closes the text");
  }
}

void countersStay(Session& session) {
  PortHost host(session);
  const CountingScope counting(host.logger);
  callAll(host);
  expect(host.logger.errorCount == 0 && host.logger.warningCount == 0,
         "neither errors nor warnings are counted");
}

void indicesAreTheCurrent(Session& session) {
  PortHost host(session);
  {
    const GroupScope group(host.logger, "g");
    const EntryScope entry(host.logger, {});
    callAll(host);
  }
  for (const LogMessage& message : host.logger.messages)
    expect(message.groupIndex == 0 && message.entryIndex == 0, "the message has its entry");
}

void recordGoesToTheEntry(Session& session) {
  PortHost host(session);
  const GroupScope group(host.logger, "g");
  const EntryScope first(host.logger, {});
  host.reportAny(makeAny<std::int32_t>(1));
  const EntryScope second(host.logger, {});
  host.reportAny(makeAny<std::int32_t>(2));
  const auto& entries = host.logger.groups.at(0).entries;
  expect(entries.size() == 2, "there are two entries");
  expectText("the first record", entries[0].outputs.at("port").valueText, "1");
  expectText("the second record", entries[1].outputs.at("port").valueText, "2");
  expect(host.logger.fallbackEntry.outputs.empty(), "nothing falls back");
}

void recordIsReplaced(Session& session) {
  PortHost host(session);
  host.reportAny(makeAny<std::int32_t>(1));
  host.logger.printLimit = 0;
  host.reportAny(makeAny(true));
  const auto& outputs = host.logger.fallbackEntry.outputs;
  expect(outputs.size() == 1, "the port has one record");
  expectText("its type", outputs.at("port").typeName, "bool");
  expect(!outputs.at("port").valueShown && outputs.at("port").valueText.empty(),
         "nothing of the first record stays");
  expect(host.logger.messages.size() == 2, "both messages stay");
}

void inputsLeaveNoRecord(Session& session) {
  PortHost host(session);
  host.setInput(Orvel::typeOf<std::int32_t>());
  expect(host.logger.fallbackEntry.outputs.empty(), "there is no record");
}

void othersFieldsStay(Session& session) {
  PortHost host(session);
  callAll(host);
  const VtlCmdLogger& logger = host.logger;
  expect(logger.printLimit == 10 && !logger.countingEnabled && logger.texts.empty() &&
             logger.groups.empty() && logger.currentGroupIndex == VtlCmdLogger::noCurrent &&
             logger.currentEntryIndex == VtlCmdLogger::noCurrent &&
             logger.fallbackEntry.messages.empty() && !logger.fallbackEntry.succeeded(),
         "the host's fields are as they were");
}

void hostsMessagesStay(Session& session) {
  PortHost host(session);
  host.logger.addMessage(vantrelSource, levelError, "before");
  callAll(host);
  expectText("first message", host.logger.messages.front().text, "before");
  expect(host.logger.messages.size() == 9, "messages go behind it");
}

void eachCallHasItsLogger(Session& session) {
  PortHost host(session);
  VtlCmdLogger other(0);
  host.reportAny(makeAny(true));
  host.context.logger = &other;
  host.reportAny(makeAny(true));
  expect(host.logger.messages.size() == 1 && other.messages.size() == 1,
         "each logger has one message");
  expectText("the other's message", other.messages[0].text,
             "Output port 'port': (bool output suppressed)");
}

}  // namespace

void addLoggerChecks(CheckList& checks) {
  checks.push_back(
      {"logger-source", "Every message has source 0 and no closing line end.", sourceIsOwn});
  checks.push_back({"logger-counters", "The plug-in's messages are never counted.", countersStay});
  checks.push_back(
      {"logger-indices", "A message belongs to the current entry.", indicesAreTheCurrent});
  checks.push_back({"logger-entries", "A record goes to the current entry.", recordGoesToTheEntry});
  checks.push_back(
      {"logger-replaces", "A port's second record replaces the first.", recordIsReplaced});
  checks.push_back({"logger-inputs", "Inputs leave no record.", inputsLeaveNoRecord});
  checks.push_back({"logger-host-fields", "The host's fields of the logger stay as they are.",
                    othersFieldsStay});
  checks.push_back({"logger-host-messages", "The host's messages stay.", hostsMessagesStay});
  checks.push_back({"logger-of-the-call", "Each call writes to the logger of its context.",
                    eachCallHasItsLogger});
}

}  // namespace vtlcmd::validator
