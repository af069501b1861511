#pragma once

#include "vtlcmd/translation/vtlcmd_type_translation.h"

namespace vtlcmd::spoiled {

/// Where a plug-in may do another thing than it promises: each takes the good object and what it
/// was called with. Null where it does the right thing.
struct Defect {
  const char* name;
  void (*names)(const VtlCmdTypeTranslation&, Orvel::Array<Orvel::String>&) = nullptr;
  bool (*setInput)(const VtlCmdTypeTranslation&, const Orvel::Type&, Any&,
                   InputValueData*) = nullptr;
  bool (*getAny)(const VtlCmdTypeTranslation&, const Any&, OutputValueData*) = nullptr;
  bool (*getValue)(const VtlCmdTypeTranslation&, const Orvel::Value&, OutputValueData*) = nullptr;
  void (*destroy)(VtlCmdTypeTranslation*) = nullptr;
};

/// Ends the process when there is none of that name.
const Defect& defectNamed(const char* name);

}  // namespace vtlcmd::spoiled
