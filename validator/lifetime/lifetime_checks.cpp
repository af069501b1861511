#include <memory>
#include <vector>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "platform/library.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

void leavesTheProcess(Session& session) {
  session.unload();
  expect(!isLoaded(session.file()), "nobody has the library loaded before");
  { const Translator translator(session.plugIn()); }
  expect(isLoaded(session.file()), "it is loaded");
  session.unload();
  expect(!isLoaded(session.file()), "it is gone when it was closed");
}

void loadsAgain(Session& session) {
  for (int round = 0; round < 100; ++round) {
    {
      PortHost host(session);
      host.giveText("1.5");
      expect(host.setInput(Orvel::typeOf<float>()), "the input is set");
      expect(host.reportAny(host.value), "the output is reported");
      host.value = Any();
    }
    session.unload();
    expect(!isLoaded(session.file()), "it is gone when it was closed");
  }
}

void loadsWithoutUse(Session& session) {
  for (int round = 0; round < 10; ++round) {
    session.plugIn();
    session.unload();
  }
}

void manyObjects(Session& session) {
  std::vector<std::unique_ptr<PortHost>> hosts(1000);
  for (auto& host : hosts) host = std::make_unique<PortHost>(session);
  for (std::size_t i = 0; i < hosts.size(); ++i) {
    const std::string text = std::to_string(i);
    hosts[i]->giveText(text.c_str());
    expect(hosts[i]->setInput(Orvel::typeOf<std::int32_t>()), "the input is set");
  }
  // Every second one goes first.
  for (std::size_t i = 0; i < hosts.size(); i += 2) hosts[i].reset();
  for (std::size_t i = 1; i < hosts.size(); i += 2) {
    const auto* held = anyCast<std::int32_t>(&hosts[i]->value);
    expect(held != nullptr && *held == static_cast<std::int32_t>(i), "each has its own value");
    expect(hosts[i]->reportAny(hosts[i]->value), "the output is reported");
  }
}

void valuesOutliveObjects(Session& session) {
  Any value;
  {
    PortHost host(session);
    host.giveText("1,2,3,4");
    expect(host.setInput(Orvel::typeOf<Math::double4>()), "the input is set");
    value = std::move(host.value);
  }
  const Any copy = value;
  value = Any();
  const auto* held = anyCast<Math::double4>(&copy);
  expect(held != nullptr && *held == Math::double4{{1, 2, 3, 4}}, "the copy holds the value");
}

void outputsBeforeInputs(Session& session) {
  PortHost host(session);
  expect(host.reportValue(Orvel::makeValue(1.5F)), "an output first");
  expect(host.setInput(Orvel::typeOf<float>()), "then an input");
  expect(!host.setInput(Orvel::typeOf<Math::int3>()), "then a refusal");
  expect(host.reportAny(host.value), "then an output");
  expect(host.setInput(Orvel::typeOf<float>()), "then the same input");
  Orvel::Array<Orvel::String> names;
  host.translation->getSupportedTypeNames(names);
  expect(host.reportAny(host.value), "then an output behind the names");
  expect(host.messages().size() == 9, "each call left its messages");
}

void repeatedCallsAgree(Session& session) {
  PortHost host(session);
  host.giveText("1,2.5,3");
  for (int round = 0; round < 100; ++round) {
    expect(host.setInput(Orvel::typeOf<Math::float3>()), "the input is set");
    expectText("line", host.lastText(), "Set input port 'port': (Math::float3) {1, 2.5, 3}");
    expect(host.reportAny(host.value), "the output is reported");
    expectText("line", host.lastText(), "Output port 'port': (Math::float3) {1, 2.5, 3}");
  }
}

void refusalsLeaveNoTrace(Session& session) {
  PortHost host(session);
  for (int round = 0; round < 3; ++round) {
    host.giveText("abc");
    expect(!host.setInput(Orvel::typeOf<std::int32_t>()), "the bad text is refused");
    host.giveText("12");
    expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the good text is taken");
    const auto* held = anyCast<std::int32_t>(&host.value);
    expect(held != nullptr && *held == 12, "the value is the good text's");
  }
}

void hostWordsAreNotRead(Session& session) {
  PortHost host(session);
  // NOLINTNEXTLINE(performance-no-int-to-ptr): nothing is there
  auto* const noAddress = reinterpret_cast<void*>(std::uintptr_t{1});
  InputValueData input{noAddress, &host.name, false, {}, &host.context};
  expect(host.translation->setInputValue(Orvel::typeOf<bool>(), host.value, &input),
         "the input is set");
  OutputValueData output{noAddress, &host.name, &host.context};
  expect(host.translation->getOutputAny(host.value, &output), "the output is reported");
}

void recordsStay(Session& session) {
  PortHost host(session);
  const auto array = arrayOf<double>({1});
  InputValueData data{nullptr, &host.name, true, makeAny(array), &host.context};
  expect(host.translation->setInputValue(Orvel::typeOf<double>(), host.value, &data),
         "the input is set");
  const auto* held = anyCast<StoredArray<double, 1>>(&data.defaultValue);
  expect(data.isJobPort && data.portName == &host.name && data.context == &host.context &&
             held != nullptr && held->get() == array.get(),
         "the record is as it was");
  expectText("port name", host.name.c_str(), "port");
}

}  // namespace

void addLifetimeChecks(CheckList& checks) {
  checks.push_back({"lifetime-unload", "A closed library leaves the process.", leavesTheProcess});
  checks.push_back({"lifetime-reload", "It can be loaded, used and closed 100 times.", loadsAgain});
  checks.push_back(
      {"lifetime-unused", "It can be closed without having been used.", loadsWithoutUse});
  checks.push_back(
      {"lifetime-many-objects", "A thousand objects live beside each other.", manyObjects});
  checks.push_back(
      {"lifetime-values", "Values outlive the object that made them.", valuesOutliveObjects});
  checks.push_back({"lifetime-odd-order", "Calls may come in any order.", outputsBeforeInputs});
  checks.push_back(
      {"lifetime-repeats", "A repeated call does the same again.", repeatedCallsAgree});
  checks.push_back(
      {"lifetime-after-refusal", "Nothing stays of a refused text.", refusalsLeaveNoTrace});
  checks.push_back(
      {"lifetime-host-word", "The host's word of a record is never read.", hostWordsAreNotRead});
  checks.push_back({"lifetime-records", "The host's records stay as they are.", recordsStay});
}

}  // namespace vtlcmd::validator
