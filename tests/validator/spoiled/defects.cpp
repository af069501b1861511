#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <thread>

#include "defect.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::spoiled {
namespace {

using Good = VtlCmdTypeTranslation;

bool isNamed(const Orvel::Type& type, const char* name) {
  return type.getFullyQualifiedName() == name;
}

std::string& lastText(const RunContext* context) { return context->logger->messages.back().text; }

/// Calls `change` with each message that a call adds.
template <typename Call, typename Change>
bool withMessages(VtlCmdLogger& logger, const Call& call, const Change& change) {
  const std::size_t before = logger.messages.size();
  const bool answer = call();
  std::for_each(logger.messages.begin() + static_cast<std::ptrdiff_t>(before),
                logger.messages.end(), change);
  return answer;
}

/// An input that spoils the messages of a type's port.
template <typename Change>
bool inputMessages(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data,
                   const char* name, const Change& change) {
  if (data == nullptr || !isNamed(type, name)) return good.setInputValue(type, value, data);
  return withMessages(
      *data->context->logger, [&] { return good.setInputValue(type, value, data); }, change);
}

template <typename Change>
bool valueMessages(const Good& good, const Orvel::Value& value, OutputValueData* data,
                   const char* name, const Change& change) {
  if (data == nullptr || !isNamed(value.getType(), name)) return good.getOutputValue(value, data);
  return withMessages(
      *data->context->logger, [&] { return good.getOutputValue(value, data); }, change);
}

bool wrongLevel(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  return inputMessages(good, type, value, data, "Simulation::Time", [](LogMessage& message) {
    if (message.level == levelError) message.level = levelWarning;
  });
}

bool wrongSource(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  return inputMessages(good, type, value, data, "Math::double4",
                       [](LogMessage& message) { message.source = vantrelSource; });
}

bool wrongPortWord(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  return inputMessages(good, type, value, data, "Math::double2", [](LogMessage& message) {
    const std::size_t at = message.text.find("input port");
    if (at != std::string::npos) message.text[at] = 'I';
  });
}

bool fullStopMissing(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  return inputMessages(good, type, value, data, "Math::int2", [](LogMessage& message) {
    if (message.text.ends_with('.')) message.text.pop_back();
  });
}

bool lineEndAdded(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  return inputMessages(good, type, value, data, "Math::float4",
                       [](LogMessage& message) { message.text += '\n'; });
}

bool falseOnSuccess(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  return good.setInputValue(type, value, data) && !isNamed(type, "Math::double3");
}

bool keepsOldValue(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (!isNamed(type, "float") || !value.holdsValue()) return good.setInputValue(type, value, data);
  Any made;
  const bool answer = good.setInputValue(type, made, data);
  if (answer) value = made;
  return answer;
}

bool defaultForBadText(const Good& good, const Orvel::Type& type, Any& value,
                       InputValueData* data) {
  const bool answer = good.setInputValue(type, value, data);
  if (answer || !isNamed(type, "uint") || !data->defaultValue.holdsValue()) return answer;
  value = data->defaultValue;
  return true;
}

bool convertsDefault(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  const bool answer = good.setInputValue(type, value, data);
  if (isNamed(type, "Math::float2") && answer && anyCast<Math::float2>(&value) == nullptr)
    value = makeAny(Math::float2{});
  return answer;
}

bool loudArrays(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (data != nullptr && isNamed(type, "array<string>"))
    data->context->logger->addMessage(vtlcmdSource, levelWarning, "arrays aren't supported");
  return good.setInputValue(type, value, data);
}

bool mapsMixed(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (data == nullptr || !isNamed(type, "Math::float4"))
    return good.setInputValue(type, value, data);
  RunContext context = *data->context;
  context.jobValues = context.inputValues;
  InputValueData other{nullptr, data->portName, data->isJobPort, data->defaultValue, &context};
  return good.setInputValue(type, value, &other);
}

bool changesRecord(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  const bool answer = good.setInputValue(type, value, data);
  if (data != nullptr && isNamed(type, "double")) data->defaultValue = Any();
  return answer;
}

bool readsHostWord(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (data != nullptr && data->hostWord != nullptr)
    return *static_cast<volatile char*>(data->hostWord) != 0;
  return good.setInputValue(type, value, data);
}

bool throwsOnZero(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (data != nullptr && isNamed(type, "Simulation::Time") && data->context->frameLength < 0)
    throw std::runtime_error("negative");
  return good.setInputValue(type, value, data);
}

bool crashes(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (isNamed(type, "Math::uchar4")) std::abort();
  return good.setInputValue(type, value, data);
}

bool hangs(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  while (isNamed(type, "Math::uchar3")) std::this_thread::sleep_for(std::chrono::seconds(1));
  return good.setInputValue(type, value, data);
}

bool exits(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  if (isNamed(type, "Math::short3")) std::_Exit(0);
  return good.setInputValue(type, value, data);
}

bool sceneLosesSeparator(const Good& good, const Orvel::Type& type, Any& value,
                         InputValueData* data) {
  const bool answer = good.setInputValue(type, value, data);
  using Vantrel::File::Project::SceneInfo;
  auto* scene = const_cast<SceneInfo*>(anyCast<SceneInfo>(&value));
  if (scene == nullptr) return answer;
  std::string directory = scene->directory.c_str();
  if (directory.size() > 1 && directory.ends_with('/')) directory.pop_back();
  scene->directory = directory.c_str();
  return answer;
}

bool wrongTimeMode(const Good& good, const Orvel::Type& type, Any& value, InputValueData* data) {
  const bool answer = good.setInputValue(type, value, data);
  using Vantrel::Simulation::Time;
  if (auto* time = const_cast<Time*>(anyCast<Time>(&value))) time->mode = 0;
  return answer;
}

bool writesToErrors(const Good& good, const Any& value, OutputValueData* data) {
  if (data != nullptr && !value.holdsValue()) std::cerr << "empty" << std::endl;
  return good.getOutputAny(value, data);
}

bool nullInSilence(const Good& good, const Any& value, OutputValueData* data) {
  return data != nullptr && good.getOutputAny(value, data);
}

bool leaksUse(const Good& good, const Any& value, OutputValueData* data) {
  if (anyCast<StoredArray<double, 2>>(&value) != nullptr) new Any(value);
  return good.getOutputAny(value, data);
}

bool dropsUse(const Good& good, const Any& value, OutputValueData* data) {
  if (const auto* array = anyCast<StoredArray<Orvel::String, 2>>(&value))
    if (array->control != nullptr && array->control->useCount > 1) --array->control->useCount;
  return good.getOutputAny(value, data);
}

bool warnsOfUnknownAny(const Good& good, const Any& value, OutputValueData* data) {
  const bool answer = good.getOutputAny(value, data);
  if (!answer && data != nullptr && value.type().rank == 4)
    data->context->logger->addMessage(vtlcmdSource, levelWarning, "unknown");
  return answer;
}

bool uncutRows(const Good& good, const Any& value, OutputValueData* data) {
  if (data == nullptr || anyCast<StoredArray<std::int32_t, 2>>(&value) == nullptr)
    return good.getOutputAny(value, data);
  VtlCmdLogger& logger = *data->context->logger;
  const std::uint32_t limit = logger.printLimit;
  if (limit != 0) logger.printLimit = std::max(limit, 10U);
  const bool answer = good.getOutputAny(value, data);
  logger.printLimit = limit;
  return answer;
}

bool noRecord(const Good& good, const Any& value, OutputValueData* data) {
  const bool answer = good.getOutputAny(value, data);
  if (answer && anyCast<std::uint64_t>(&value) != nullptr)
    data->context->logger->currentEntry().outputs.clear();
  return answer;
}

bool averageRounds(const Good& good, const Any& value, OutputValueData* data) {
  const bool answer = good.getOutputAny(value, data);
  const auto* array = anyCast<StoredArray<std::int32_t, 1>>(&value);
  if (!answer || array == nullptr || (*array)->size != 2 || (*array)->data[0] != 1) return answer;
  std::string& text = lastText(data->context);
  const std::size_t at = text.find("avg: 1");
  if (at != std::string::npos) text[at + 5] = '2';
  return answer;
}

bool criticalForUnknown(const Good& good, const Orvel::Value& value, OutputValueData* data) {
  return valueMessages(good, value, data, "Math::int2x2", [](LogMessage& message) {
    if (message.level == levelWarning) message.level = levelCritical;
  });
}

bool wrongMessageOrder(const Good& good, const Orvel::Value& value, OutputValueData* data) {
  const bool answer = good.getOutputValue(value, data);
  if (answer || data == nullptr || !isNamed(value.getType(), "Math::double4x4")) return answer;
  auto& messages = data->context->logger->messages;
  std::swap(messages[messages.size() - 1], messages[messages.size() - 2]);
  return answer;
}

bool fallsBack(const Good& good, const Orvel::Value& value, OutputValueData* data) {
  const bool answer = good.getOutputValue(value, data);
  return answer || (data != nullptr && isNamed(value.getType(), "Simulation::Time"));
}

void namesCleared(const Good& good, Orvel::Array<Orvel::String>& names) {
  names = Orvel::Array<Orvel::String>();
  good.getSupportedTypeNames(names);
}

void namesWithout(const Good& good, Orvel::Array<Orvel::String>& names) {
  Orvel::Array<Orvel::String> all;
  good.getSupportedTypeNames(all);
  for (std::uint64_t i = 0; i + 1 < all.size; ++i) names.append(all[i]);
}

void destroyNeedsObject(VtlCmdTypeTranslation* object) {
  if (object == nullptr) std::abort();
  delete object;
}

/// One row a defect; the tests' table says which checks have to find it.
constexpr Defect defects[]{
    {.name = "wrong-level", .setInput = wrongLevel},
    {.name = "wrong-source", .setInput = wrongSource},
    {.name = "wrong-port-word", .setInput = wrongPortWord},
    {.name = "full-stop-missing", .setInput = fullStopMissing},
    {.name = "line-end-added", .setInput = lineEndAdded},
    {.name = "false-on-success", .setInput = falseOnSuccess},
    {.name = "keeps-old-value", .setInput = keepsOldValue},
    {.name = "default-for-bad-text", .setInput = defaultForBadText},
    {.name = "converts-default", .setInput = convertsDefault},
    {.name = "loud-arrays", .setInput = loudArrays},
    {.name = "maps-mixed", .setInput = mapsMixed},
    {.name = "changes-record", .setInput = changesRecord},
    {.name = "reads-host-word", .setInput = readsHostWord},
    {.name = "throws", .setInput = throwsOnZero},
    {.name = "crashes", .setInput = crashes},
    {.name = "hangs", .setInput = hangs},
    {.name = "exits", .setInput = exits},
    {.name = "scene-loses-separator", .setInput = sceneLosesSeparator},
    {.name = "wrong-time-mode", .setInput = wrongTimeMode},
    {.name = "writes-to-errors", .getAny = writesToErrors},
    {.name = "null-in-silence", .getAny = nullInSilence},
    {.name = "leaks-use", .getAny = leaksUse},
    {.name = "drops-use", .getAny = dropsUse},
    {.name = "warns-of-unknown-any", .getAny = warnsOfUnknownAny},
    {.name = "uncut-rows", .getAny = uncutRows},
    {.name = "no-record", .getAny = noRecord},
    {.name = "average-rounds", .getAny = averageRounds},
    {.name = "critical-for-unknown", .getValue = criticalForUnknown},
    {.name = "wrong-message-order", .getValue = wrongMessageOrder},
    {.name = "true-for-unknown", .getValue = fallsBack},
    {.name = "names-cleared", .names = namesCleared},
    {.name = "names-without-last", .names = namesWithout},
    {.name = "destroy-needs-object", .destroy = destroyNeedsObject},
    {.name = "extra-export"},
    {.name = "extra-import"},
    {.name = "stays-loaded"},
};

}  // namespace

const Defect& defectNamed(const char* name) {
  const auto* found = std::find_if(std::begin(defects), std::end(defects), [&](const Defect& row) {
    return std::strcmp(row.name, name) == 0;
  });
  if (found == std::end(defects)) std::abort();
  return *found;
}

}  // namespace vtlcmd::spoiled
