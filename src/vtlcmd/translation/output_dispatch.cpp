#include <cstddef>

#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/text/joined.h"
#include "vtlcmd/translation/null_data.h"
#include "vtlcmd/translation/vtlcmd_type_translation.h"

namespace vtlcmd {

bool VtlCmdTypeTranslation::getOutputValue(const Orvel::Value& value, OutputValueData* data) const {
  if (data == nullptr) {
    reportNullData();
    return false;
  }
  VtlCmdLogger* logger = data->context->logger;
  Orvel::Type elementType = value.getType();
  std::size_t arrayDepth = 0;
  for (; elementType.getTypeKind() == Orvel::TypeKind::array; ++arrayDepth) {
    elementType = Orvel::ArrayType(elementType).getElementType();
  }
  const Orvel::String elementName = elementType.getFullyQualifiedName();
  const auto found = handlers->byName.find(elementName);
  if (found != handlers->byName.end() && found->second.reporter != nullptr) {
    found->second.reporter(data->portName, value, arrayDepth, logger);
    return true;
  }
  const char* port = data->portName->c_str();
  const Orvel::String wholeName = value.getType().getFullyQualifiedName();
  logger->addMessage(vtlcmdSource, levelProgress,
                     joined({"Output port '", port, "' [", wholeName.c_str(), "]"}));
  logger->addMessage(
      vtlcmdSource, levelWarning,
      joined({"The TypeTranslation does not support getting a value of type '", elementName.c_str(),
              "' for the Terminal output named '", port, "'."}));
  return false;
}

bool VtlCmdTypeTranslation::getOutputAny(const Any& value, OutputValueData* data) const {
  if (data == nullptr) {
    reportNullData();
    return false;
  }
  VtlCmdLogger* logger = data->context->logger;
  const auto found = handlers->byTag.find(&value.type());
  if (found == handlers->byTag.end() || found->second == nullptr) return false;
  found->second(data->portName, value, logger);
  return true;
}

}  // namespace vtlcmd
