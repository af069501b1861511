#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

/// The two lines of a port without text.
std::vector<std::string> defaultLines(const std::string& type, const std::string& word,
                                      const char* report) {
  return {"verbose No value was provided to vtlcmd for " + word + " port 'port' (" + type +
              "). A default value will be used.",
          "verbose Set " + word + " port 'port': (" + type + ") " + report};
}

void zeroStandsIn(Session& session, const Sample& sample) {
  for (const bool isJobPort : {false, true}) {
    PortHost host(session);
    expect(host.setInput(sample.makeType(), isJobPort), "the answer is true");
    expect(sample.holdSame(host.value, sample.makeZero()), "the result holds the type's zero");
    expectLines("messages", host.messages(),
                defaultLines(sample.type, isJobPort ? "Job" : "input", sample.zeroReport));
  }
}

void hostsDefaultStandsIn(Session& session, const Sample& sample) {
  PortHost host(session);
  // The other map isn't looked at.
  host.giveJobText("other");
  const Any value = sample.makeAny(0);
  expect(host.setInput(sample.makeType(), false, value), "the answer is true");
  expect(sample.holdSame(host.value, value), "the result holds the default");
  expectLines("messages", host.messages(), defaultLines(sample.type, "input", sample.report));
}

void otherTypesDefaultIsCopied(Session& session, const Sample& sample) {
  PortHost host(session);
  const auto array = arrayOf<std::int32_t>({1});
  expect(host.setInput(sample.makeType(), false, makeAny(array)), "the answer is true");
  expect(sameType(host.value.type(), tagOf<StoredArray<std::int32_t, 1>>()),
         "the default is copied as it stands");
  expectLines("messages", host.messages(),
              defaultLines(sample.type, "input",
                           sample.isObject() ? "{\n  No object produced, verify your inputs.\n}"
                                             : sample.zeroReport));
}

void arrayIsRefusedInSilence(Session& session, const Sample& sample) {
  PortHost host(session);
  host.giveText("1");
  host.value = makeAny<std::int32_t>(5);
  expect(!host.setInput(Orvel::makeArrayType(sample.makeType()), false, sample.makeAny(1)),
         "the answer is false");
  const auto* held = anyCast<std::int32_t>(&host.value);
  expect(held != nullptr && *held == 5, "the result is as it was");
  expectLines("messages", host.messages(), {});
}

}  // namespace

void addInputDefaultChecks(CheckList& checks) {
  for (const Sample& sample : samples()) {
    addChecksOfType(checks, sample.type,
                    {{"input-zero", "A {} port without text and default gets the type's zero.",
                      [&](Session& session) { zeroStandsIn(session, sample); }},
                     {"input-default", "A {} port without text gets the default.",
                      [&](Session& session) { hostsDefaultStandsIn(session, sample); }},
                     {"input-foreign-default",
                      "A default of another type is copied as it stands for a {} port.",
                      [&](Session& session) { otherTypesDefaultIsCopied(session, sample); }},
                     {"input-array", "An array of {} is refused in silence as an input.",
                      [&](Session& session) { arrayIsRefusedInSilence(session, sample); }}});
  }
}

}  // namespace vtlcmd::validator
