#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "platform/error_stream.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

constexpr const char* nullDataLine = "[vtlcmd]  Critical: The TypeTranslation ValueData is null.\n";

template <typename Call>
void expectRefusal(Session& session, const Call& call) {
  PortHost host(session);
  host.value = makeAny<std::int32_t>(5);
  std::string text;
  bool answer = true;
  {
    const CaughtErrors errors;
    answer = call(host);
    text = errors.text();
  }
  expect(!answer, "the answer is false");
  expectText("error stream", text, nullDataLine);
  const auto* held = anyCast<std::int32_t>(&host.value);
  expect(held != nullptr && *held == 5, "the result is as it was");
  expectLines("messages", host.messages(), {});
}

void nullInput(Session& session) {
  expectRefusal(session, [](PortHost& host) {
    return host.translation->setInputValue(Orvel::typeOf<std::int32_t>(), host.value, nullptr);
  });
}

void nullArrayInput(Session& session) {
  expectRefusal(session, [](PortHost& host) {
    const Orvel::Type type = Orvel::makeArrayType(Orvel::typeOf<std::int32_t>());
    return host.translation->setInputValue(type, host.value, nullptr);
  });
}

void nullAny(Session& session) {
  expectRefusal(session,
                [](PortHost& host) { return host.translation->getOutputAny(host.value, nullptr); });
}

void nullValue(Session& session) {
  expectRefusal(session, [](PortHost& host) {
    return host.translation->getOutputValue(Orvel::makeValue(true), nullptr);
  });
}

void silentOtherwise(Session& session) {
  PortHost host(session);
  const CaughtErrors errors;
  host.giveText("abc");
  host.setInput(Orvel::typeOf<std::int32_t>());
  host.setInput(Orvel::typeOf<Math::float2x2>());
  host.reportAny({});
  host.reportAny(makeAny<std::int32_t>(1));
  host.reportValue(Orvel::makeValue(std::int16_t{1}));
  expectText("error stream", errors.text(), "");
}

}  // namespace

void addNullRecordChecks(CheckList& checks) {
  checks.push_back(
      {"null-record-input", "An input without record is refused on the error stream.", nullInput});
  checks.push_back({"null-record-array-input",
                    "A missing record is seen before the type of the port.", nullArrayInput});
  checks.push_back(
      {"null-record-any", "An Any without record is refused on the error stream.", nullAny});
  checks.push_back(
      {"null-record-value", "A value without record is refused on the error stream.", nullValue});
  checks.push_back(
      {"null-record-else", "Nothing else is written to the error stream.", silentOtherwise});
}

}  // namespace vtlcmd::validator
