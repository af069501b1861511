#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

template <Registered T>
std::string valueLine(const char* word, const char* report) {
  return std::string("verbose Set ") + word + " port 'port': (" + valueType<T>().name + ") " +
         report;
}

/// What the logger gets for the sample's bad text, or for any text of an object's port.
template <Registered T>
std::string badTextLine(const char* word) {
  const auto& row = valueType<T>();
  const std::string prefix = std::string("error ") + word + " port 'port' (" + row.name + "): ";
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return prefix + "UNSUPPORTED: setFromString() for Object";
  } else {
    return prefix + "Unable to convert '" + sampleOf<T>().badPiece + row.parseErrorEnd;
  }
}

template <Registered T>
void expectHeld(const Any& any, const T& wanted) {
  const T* held = anyCast<T>(&any);
  expect(held != nullptr, "the result holds the port's type");
  expect(alike(*held, wanted), "the result holds the text's value");
}

template <Registered T>
void textGivesValue(Session& session, bool isJobPort) {
  PortHost host(session);
  isJobPort ? host.giveJobText(sampleOf<T>().text) : host.giveText(sampleOf<T>().text);
  expect(host.setInput(Orvel::typeOf<T>(), isJobPort), "the answer is true");
  expectHeld<T>(host.value, sampleValue<T>());
  expectLines("messages", host.messages(),
              {valueLine<T>(isJobPort ? "Job" : "input", sampleOf<T>().report)});
}

template <Registered T>
void badTextIsRefused(Session& session, bool isJobPort) {
  PortHost host(session);
  isJobPort ? host.giveJobText(sampleOf<T>().badText) : host.giveText(sampleOf<T>().badText);
  expect(!host.setInput(Orvel::typeOf<T>(), isJobPort, makeAny<T>(sampleValue<T>())),
         "the answer is false");
  expect(!host.value.holdsValue(), "the result is empty, not the default");
  expectLines("messages", host.messages(), {badTextLine<T>(isJobPort ? "Job" : "Input")});
}

template <Registered T>
void oldValueIsReplaced(Session& session) {
  PortHost host(session);
  const auto old = arrayOf<double>({1, 2});
  host.value = makeAny(old);
  host.giveText(sampleOf<T>().text);
  expect(host.setInput(Orvel::typeOf<T>()), "the answer is true");
  expectHeld<T>(host.value, sampleValue<T>());
  expect(Orvel::useCount(old) == 1, "the old value has ended");
}

template <Registered T>
void oldValueIsDropped(Session& session) {
  PortHost host(session);
  const auto old = arrayOf<double>({1, 2});
  host.value = makeAny(old);
  host.giveText(sampleOf<T>().badText);
  expect(!host.setInput(Orvel::typeOf<T>()), "the answer is false");
  expect(!host.value.holdsValue(), "the result is empty");
  expect(Orvel::useCount(old) == 1, "the old value has ended");
}

template <Registered T>
void addTextsOf(CheckList& checks) {
  const char* const type = valueType<T>().name;
  if constexpr (!std::is_same_v<T, ObjectPtr>) {
    addChecksOfType(
        checks, type,
        {{"input-text", "A {} port takes its text.",
          [](Session& session) { textGivesValue<T>(session, false); }},
         {"input-job-text", "A {} Job port takes its Job text.",
          [](Session& session) { textGivesValue<T>(session, true); }},
         {"input-replaces", "A {} ends what the result held before.", oldValueIsReplaced<T>}});
  }
  if constexpr (!std::is_same_v<T, Orvel::String>) {
    addChecksOfType(checks, type,
                    {{"input-bad-text",
                      "A text that is no {} is refused with one message, and no default stands in.",
                      [](Session& session) { badTextIsRefused<T>(session, false); }},
                     {"input-bad-job-text", "A Job text that is no {} is refused with one message.",
                      [](Session& session) { badTextIsRefused<T>(session, true); }},
                     {"input-drops", "A text that is no {} ends what the result held before.",
                      oldValueIsDropped<T>}});
  }
}

}  // namespace

void addInputTextChecks(CheckList& checks) {
  forEachRegistered([&](const auto& row) { addTextsOf<TypeOf<decltype(row)>>(checks); });
}

}  // namespace vtlcmd::validator
