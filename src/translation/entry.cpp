#include "translation/entry.h"

#include <new>

#include "build_identity/build_identity.h"
#include "translation/vtlcmd_type_translation.h"

namespace {

/// Asked for once, while the library is loaded; for whoever looks at the process.
[[maybe_unused]] const bool versionInfoDumped = vtlcmd::build_identity::dumpVersionInfo();

}  // namespace

VantrelGraph::Executor::TypeTranslation* createVantrelTypeTranslation() noexcept {
  return new (std::nothrow) vtlcmd::VtlCmdTypeTranslation;
}
