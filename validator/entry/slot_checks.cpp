#include <filesystem>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "platform/library.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

/// A virtual destructor takes two entries of the table here, and every later slot moves by one.
constexpr std::size_t entryOf(std::size_t slot) { return slot == 0 ? 0 : slot + 1; }

void* slotOf(const Translation& translation, std::size_t slot) {
  void* const* table = *reinterpret_cast<void* const* const*>(&translation);
  return table[entryOf(slot)];
}

template <typename Function>
Function* functionIn(const Translation& translation, std::size_t slot) {
  return reinterpret_cast<Function*>(slotOf(translation, slot));
}

struct Slot {
  std::size_t number;
  const char* name;
  bool isPlugIns;
};

constexpr Slot slots[]{
    {0, "destructor", true},
    {1, "destroy", true},
    {2, "supported-types", false},
    {3, "supported-type-names", true},
    {4, "set-input-value", true},
    {5, "get-output-any", true},
    {6, "port-added", false},
    {7, "port-removed", false},
    {8, "port-renamed", false},
    {9, "register-host-plugins", false},
    {10, "unregister-host-plugins", false},
    {11, "get-output-value", true},
};

void slotLeadsHome(Session& session, const Slot& slot) {
  const Translator translator(session.plugIn());
  const std::filesystem::path file = fileAt(slotOf(*translator, slot.number));
  expect(!file.empty(), "the entry leads to a library");
  if (slot.isPlugIns) {
    expect(std::filesystem::equivalent(file, session.file()), "the body is the plug-in's own");
  } else {
    expect(file.filename().string().find("VantrelBoardExecutor") != std::string::npos,
           "the body is the executor's");
  }
}

void namesInTheirSlot(Session& session) {
  const Translator translator(session.plugIn());
  Orvel::Array<Orvel::String> names;
  functionIn<void(const Translation*, Orvel::Array<Orvel::String>&)>(*translator, 3)(&*translator,
                                                                                     names);
  expect(names.size == 17, "slot 3 lists the names");
}

void inputInItsSlot(Session& session) {
  PortHost host(session);
  host.giveText("12");
  InputValueData data{nullptr, &host.name, false, {}, &host.context};
  using SetInput = bool(const Translation*, const Orvel::Type&, Any&, InputValueData*);
  expect(functionIn<SetInput>(*host.translation, 4)(
             &*host.translation, Orvel::typeOf<std::int32_t>(), host.value, &data),
         "slot 4 answers true");
  expect(anyCast<std::int32_t>(&host.value) != nullptr, "slot 4 sets the value");
}

void anyInItsSlot(Session& session) {
  PortHost host(session);
  OutputValueData data{nullptr, &host.name, &host.context};
  using GetAny = bool(const Translation*, const Any&, OutputValueData*);
  expect(
      functionIn<GetAny>(*host.translation, 5)(&*host.translation, makeAny(std::int32_t{5}), &data),
      "slot 5 answers true");
  expectText("line", host.lastText(), "Output port 'port': (int) 5");
}

void valueInItsSlot(Session& session) {
  PortHost host(session);
  OutputValueData data{nullptr, &host.name, &host.context};
  using GetValue = bool(const Translation*, const Orvel::Value&, OutputValueData*);
  expect(functionIn<GetValue>(*host.translation, 11)(&*host.translation, Orvel::makeValue(1.5F),
                                                     &data),
         "slot 11 answers true");
  expectText("line", host.lastText(), "Output port 'port': (float) 1.5");
}

void destroyInItsSlot(Session& session) {
  Translation* object = session.plugIn().create();
  expect(object != nullptr, "the entry gives an object");
  functionIn<void(Translation*)>(*object, 1)(object);
}

void destroyTakesNull(Session& session) {
  const Translator translator(session.plugIn());
  functionIn<void(Translation*)>(*translator, 1)(nullptr);
}

}  // namespace

void addSlotChecks(CheckList& checks) {
  for (const Slot& slot : slots) {
    checks.push_back({std::string("slot-") + slot.name,
                      "Slot " + std::to_string(slot.number) + " is " +
                          (slot.isPlugIns ? "the plug-in's own." : "the executor's."),
                      [&slot](Session& session) { slotLeadsHome(session, slot); }});
  }
  checks.push_back({"slot-call-names", "Slot 3 lists the type names.", namesInTheirSlot});
  checks.push_back({"slot-call-input", "Slot 4 sets an input.", inputInItsSlot});
  checks.push_back({"slot-call-any", "Slot 5 reports an Any.", anyInItsSlot});
  checks.push_back({"slot-call-value", "Slot 11 reports a value.", valueInItsSlot});
  checks.push_back({"slot-call-destroy", "Slot 1 ends the object.", destroyInItsSlot});
  checks.push_back(
      {"slot-destroy-null", "Slot 1 does nothing for a null object.", destroyTakesNull});
}

}  // namespace vtlcmd::validator
