#include "vtlcmd/translation/entry.h"

#include <new>

#include "vtlcmd/translation/vtlcmd_type_translation.h"

VantrelGraph::Executor::TypeTranslation* createVantrelTypeTranslation() noexcept {
  return new (std::nothrow) vtlcmd::VtlCmdTypeTranslation;
}
