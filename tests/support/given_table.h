#pragma once

#include <cstddef>
#include <cstring>

#include "vtlcmd/translation/vtlcmd_type_translation.h"

namespace vtlcmd::testing {

/// Has an object dispatch by another table than the process's, which must outlive it. The way to
/// the table is all that the object holds of its own.
inline void giveTable(VtlCmdTypeTranslation& translation, const HandlerTable& table) {
  const HandlerTable* const address = &table;
  std::memcpy(reinterpret_cast<std::byte*>(&translation) +
                  sizeof(VantrelGraph::Executor::TypeTranslationPreview),
              &address, sizeof address);
}

}  // namespace vtlcmd::testing
