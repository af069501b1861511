#include <string>

#include "vtlcmd/host/store.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/text/joined.h"
#include "vtlcmd/text/text_builder.h"
#include "vtlcmd/translation/null_data.h"
#include "vtlcmd/translation/scene_path.h"
#include "vtlcmd/translation/vtlcmd_type_translation.h"

namespace vtlcmd {
namespace {

using Vantrel::File::Project::SceneInfo;
using Vantrel::Simulation::Time;

/// For the line of a time, whose numbers have up to thirteen characters.
constexpr std::size_t usualRoom = 80;

bool setTime(Any& value, const RunContext& context) {
  TextBuilder line(usualRoom);
  if (context.frameLength <= 0) {
    line << "Invalid frame length: " << context.frameLength;
    context.logger->addMessage(vtlcmdSource, levelError, line.text());
    return false;
  }
  line << "Frame: " << context.frame << " | Time: " << context.time
       << "s (fps=" << 1 / context.frameLength << ")";
  context.logger->addMessage(vtlcmdSource, levelVerbose, line.text());
  store(value, makeAny(Time{1, context.time, context.frame, context.frameLength}));
  return true;
}

bool setSceneInfo(Any& value, const RunContext& context) {
  const ScenePath scene = splitScenePath(context.sceneFile);
  store(value, makeAny(SceneInfo{
                   narrowPath(scene.fileName).c_str(), narrowPath(scene.directory).c_str(),
                   narrowPath(context.secondaryPath).c_str(), !context.secondaryPath.empty()}));
  return true;
}

struct RecordSetter {
  const char* typeName;
  bool (*set)(Any& value, const RunContext& context);
};

/// The types that no user text ever fills.
constexpr RecordSetter recordSetters[] = {
    {valueType<Time>().name, &setTime},
    {valueType<SceneInfo>().name, &setSceneInfo},
};

void refuse(const Orvel::String& typeName, const InputValueData& data) {
  const char* port = data.portName->c_str();
  const char* type = typeName.c_str();
  VtlCmdLogger& logger = *data.context->logger;
  // The plain port's word has a capital in the first line and none in the second.
  logger.addMessage(vtlcmdSource, levelProgress,
                    joined({data.isJobPort ? "Job" : "Input", " port '", port, "' [", type, "]"}));
  logger.addMessage(
      vtlcmdSource, levelCritical,
      joined({"The TypeTranslation does not support setting a value of type '", type, "' for the ",
              data.isJobPort ? "Job" : "input", " port named '", port, "'."}));
}

}  // namespace

bool VtlCmdTypeTranslation::setInputValue(const Orvel::Type& type, Any& value,
                                          InputValueData* data) const {
  if (data == nullptr) {
    reportNullData();
    return false;
  }
  const RunContext& context = *data->context;
  if (type.getTypeKind() == Orvel::TypeKind::array) return false;

  const Orvel::String typeName = type.getFullyQualifiedName();
  const auto found = handlers->byName.find(typeName);
  if (found != handlers->byName.end() && found->second.setter != nullptr) {
    found->second.setter(data->portName, data->isJobPort, type, context.inputValues,
                         context.jobValues, &data->defaultValue, &value, context.logger);
    return value.holdsValue();
  }
  for (const RecordSetter& record : recordSetters) {
    if (typeName == record.typeName) return record.set(value, context);
  }
  refuse(typeName, *data);
  return false;
}

}  // namespace vtlcmd
