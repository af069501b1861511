#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "values/samples.h"

namespace vtlcmd::validator {
namespace {

std::string valueLine(const Sample& sample, const char* word) {
  return std::string("verbose Set ") + word + " port 'port': (" + sample.type + ") " +
         sample.report;
}

/// What the logger gets for the sample's bad text, or for any text of an object's port.
std::string badTextLine(const Sample& sample, const char* word) {
  const std::string prefix = std::string("error ") + word + " port 'port' (" + sample.type + "): ";
  if (sample.isObject()) return prefix + "UNSUPPORTED: setFromString() for Object";
  return prefix + "Unable to convert '" + sample.badPiece + sample.parseErrorEnd;
}

void expectHeld(const Any& any, const Sample& sample) {
  expect(sample.holdSame(any, sample.makeAny(0)), "the result holds the text's value");
}

void textGivesValue(Session& session, const Sample& sample, bool isJobPort) {
  PortHost host(session);
  isJobPort ? host.giveJobText(sample.text) : host.giveText(sample.text);
  expect(host.setInput(sample.makeType(), isJobPort), "the answer is true");
  expectHeld(host.value, sample);
  expectLines("messages", host.messages(), {valueLine(sample, isJobPort ? "Job" : "input")});
}

void badTextIsRefused(Session& session, const Sample& sample, bool isJobPort) {
  PortHost host(session);
  isJobPort ? host.giveJobText(sample.badText) : host.giveText(sample.badText);
  expect(!host.setInput(sample.makeType(), isJobPort, sample.makeAny(0)), "the answer is false");
  expect(!host.value.holdsValue(), "the result is empty, not the default");
  expectLines("messages", host.messages(), {badTextLine(sample, isJobPort ? "Job" : "Input")});
}

void oldValueIsReplaced(Session& session, const Sample& sample) {
  PortHost host(session);
  const auto old = arrayOf<double>({1, 2});
  host.value = makeAny(old);
  host.giveText(sample.text);
  expect(host.setInput(sample.makeType()), "the answer is true");
  expectHeld(host.value, sample);
  expect(Orvel::useCount(old) == 1, "the old value has ended");
}

void oldValueIsDropped(Session& session, const Sample& sample) {
  PortHost host(session);
  const auto old = arrayOf<double>({1, 2});
  host.value = makeAny(old);
  host.giveText(sample.badText);
  expect(!host.setInput(sample.makeType()), "the answer is false");
  expect(!host.value.holdsValue(), "the result is empty");
  expect(Orvel::useCount(old) == 1, "the old value has ended");
}

void addTextsOf(CheckList& checks, const Sample& sample) {
  if (sample.text != nullptr) {
    addChecksOfType(checks, sample.type,
                    {{"input-text", "A {} port takes its text.",
                      [&](Session& session) { textGivesValue(session, sample, false); }},
                     {"input-job-text", "A {} Job port takes its Job text.",
                      [&](Session& session) { textGivesValue(session, sample, true); }},
                     {"input-replaces", "A {} ends what the result held before.",
                      [&](Session& session) { oldValueIsReplaced(session, sample); }}});
  }
  if (sample.badText != nullptr) {
    addChecksOfType(checks, sample.type,
                    {{"input-bad-text",
                      "A text that is no {} is refused with one message, and no default stands in.",
                      [&](Session& session) { badTextIsRefused(session, sample, false); }},
                     {"input-bad-job-text", "A Job text that is no {} is refused with one message.",
                      [&](Session& session) { badTextIsRefused(session, sample, true); }},
                     {"input-drops", "A text that is no {} ends what the result held before.",
                      [&](Session& session) { oldValueIsDropped(session, sample); }}});
  }
}

}  // namespace

void addInputTextChecks(CheckList& checks) {
  for (const Sample& sample : samples()) addTextsOf(checks, sample);
}

}  // namespace vtlcmd::validator
