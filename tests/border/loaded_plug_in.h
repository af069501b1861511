#pragma once

#include <gtest/gtest.h>

#include "support/loaded_library.h"
#include "vtlcmd/host/imports/vantrel_executor.h"

namespace vtlcmd::testing {

/// The plug-in as a host sees it: a file with one function.
class LoadedPlugIn {
 public:
  LoadedPlugIn() : library_(loadLibrary(VTLCMD_PLUG_IN)) { EXPECT_NE(library_, nullptr); }
  LoadedPlugIn(const LoadedPlugIn&) = delete;
  LoadedPlugIn& operator=(const LoadedPlugIn&) = delete;
  ~LoadedPlugIn() { EXPECT_TRUE(unloadLibrary(library_)); }

  VantrelGraph::Executor::TypeTranslation* create() const {
    auto* function = reinterpret_cast<VantrelGraph::Executor::TypeTranslation* (*)()>(
        functionOf(library_, "createVantrelTypeTranslation"));
    return function();
  }

  static bool isInProcess() { return isLibraryLoaded(VTLCMD_PLUG_IN); }

 private:
  void* library_;
};

}  // namespace vtlcmd::testing
