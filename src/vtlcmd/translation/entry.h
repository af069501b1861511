#pragma once

#include "vtlcmd/host/imports/vantrel_executor.h"

#if defined(_WIN32)
#define VTLCMD_EXPORT __declspec(dllexport)
#else
#define VTLCMD_EXPORT __attribute__((visibility("default")))
#endif

/// The one export of the library: a new translation object. The caller owns it and gives it up
/// through its `destroy`, before the library is unloaded. Two calls give two objects, which share
/// the handler table and nothing else. Null when the object itself can't be allocated; anything
/// that is thrown on the way ends the process. [any thread] [no throw]
extern "C" VTLCMD_EXPORT VantrelGraph::Executor::TypeTranslation*
createVantrelTypeTranslation() noexcept;
