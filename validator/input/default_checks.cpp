#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/samples.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

/// The two lines of a port without text.
template <Registered T>
std::vector<std::string> defaultLines(const std::string& word, const char* report) {
  const std::string name = valueType<T>().name;
  return {"verbose No value was provided to vtlcmd for " + word + " port 'port' (" + name +
              "). A default value will be used.",
          "verbose Set " + word + " port 'port': (" + name + ") " + report};
}

template <Registered T>
void zeroStandsIn(Session& session) {
  for (const bool isJobPort : {false, true}) {
    PortHost host(session);
    expect(host.setInput(Orvel::typeOf<T>(), isJobPort), "the answer is true");
    const T* held = anyCast<T>(&host.value);
    expect(held != nullptr && alike(*held, zeroValue<T>()), "the result holds the type's zero");
    expectLines("messages", host.messages(),
                defaultLines<T>(isJobPort ? "Job" : "input", sampleOf<T>().zeroReport));
  }
}

template <Registered T>
void hostsDefaultStandsIn(Session& session) {
  PortHost host(session);
  // The other map isn't looked at.
  host.giveJobText("other");
  expect(host.setInput(Orvel::typeOf<T>(), false, makeAny<T>(sampleValue<T>())),
         "the answer is true");
  const T* held = anyCast<T>(&host.value);
  expect(held != nullptr && alike(*held, sampleValue<T>()), "the result holds the default");
  expectLines("messages", host.messages(), defaultLines<T>("input", sampleOf<T>().report));
}

template <Registered T>
void otherTypesDefaultIsCopied(Session& session) {
  PortHost host(session);
  const auto array = arrayOf<std::int32_t>({1});
  expect(host.setInput(Orvel::typeOf<T>(), false, makeAny(array)), "the answer is true");
  expect(sameType(host.value.type(), tagOf<StoredArray<std::int32_t, 1>>()),
         "the default is copied as it stands");
  const bool isObject = std::is_same_v<T, ObjectPtr>;
  expectLines("messages", host.messages(),
              defaultLines<T>("input", isObject ? "{\n  No object produced, verify your inputs.\n}"
                                                : sampleOf<T>().zeroReport));
}

template <Registered T>
void arrayIsRefusedInSilence(Session& session) {
  PortHost host(session);
  host.giveText("1");
  host.value = makeAny<std::int32_t>(5);
  expect(!host.setInput(Orvel::makeArrayType(Orvel::typeOf<T>()), false,
                        makeAny(nestedArray<T, 1>(sampleValue<T>()))),
         "the answer is false");
  const auto* held = anyCast<std::int32_t>(&host.value);
  expect(held != nullptr && *held == 5, "the result is as it was");
  expectLines("messages", host.messages(), {});
}

}  // namespace

void addInputDefaultChecks(CheckList& checks) {
  forEachRegistered([&](const auto& row) {
    using T = TypeOf<decltype(row)>;
    addChecksOfType(
        checks, row.name,
        {{"input-zero", "A {} port without text and default gets the type's zero.",
          zeroStandsIn<T>},
         {"input-default", "A {} port without text gets the default.", hostsDefaultStandsIn<T>},
         {"input-foreign-default",
          "A default of another type is copied as it stands for a {} port.",
          otherTypesDefaultIsCopied<T>},
         {"input-array", "An array of {} is refused in silence as an input.",
          arrayIsRefusedInSilence<T>}});
  });
}

}  // namespace vtlcmd::validator
