#pragma once

#include <filesystem>

#include "text/load_error.h"
#include "vtlcmd/host/imports/vantrel_executor.h"

namespace vtlcmd::runner {

/// A plug-in that can't be loaded; the text names the file.
class PlugInError : public LoadError {
 public:
  using LoadError::LoadError;
};

/// A loaded plug-in with one translation object. Values, Anys too, that came from it must end
/// before it does.
class PlugIn {
 public:
  using Translation = VantrelGraph::Executor::TypeTranslationPreview;

  /// Throws PlugInError.
  explicit PlugIn(const std::filesystem::path& file);
  PlugIn(const PlugIn&) = delete;
  PlugIn& operator=(const PlugIn&) = delete;
  ~PlugIn();

  const Translation& translation() const noexcept { return *translation_; }

 private:
  void* library_;
  Translation* translation_;
};

/// The plug-in that belongs to this program: beside it in the build or where it is installed. The
/// first place when there is none.
std::filesystem::path ownPlugIn();

}  // namespace vtlcmd::runner
