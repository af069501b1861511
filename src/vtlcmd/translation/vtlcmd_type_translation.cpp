#include "vtlcmd/translation/vtlcmd_type_translation.h"

#include "vtlcmd/host/value_types.h"

namespace vtlcmd {

VtlCmdTypeTranslation::VtlCmdTypeTranslation()
    : TypeTranslationPreview(Orvel::String("vtlcmd TypeTranslation")),
      handlers(&sharedHandlerTable()) {}

VtlCmdTypeTranslation::~VtlCmdTypeTranslation() = default;

// A host's call through the slot may bring a null object, which the language knows no call for. So
// this file is compiled without the assumption that `this` is never null, and unchecked here.
__attribute__((no_sanitize("null"))) void VtlCmdTypeTranslation::destroy() { delete this; }

void VtlCmdTypeTranslation::getSupportedTypeNames(Orvel::Array<Orvel::String>& names) const {
  for (const auto& [name, typeHandlers] : handlers->byName) names.append(name);
  forEachRow(inputOnlyTypes, [&names](const auto& row) { names.append(row.name); });
}

}  // namespace vtlcmd
