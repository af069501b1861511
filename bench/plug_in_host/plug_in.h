#pragma once

#include "vtlcmd/host/imports/vantrel_executor.h"

namespace vtlcmd::bench {

/// A shared library by its file, loaded as a host loads a plug-in. Throws std::runtime_error.
class Library {
 public:
  explicit Library(const char* file);
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  ~Library();

  /// What the plug-in's one exported function gives. Null when the library's gives null.
  VantrelGraph::Executor::TypeTranslation* create() const;

 private:
  void* handle_;
};

/// The plug-in that was built beside this program, with one translation object.
class PlugIn {
 public:
  using Translation = VantrelGraph::Executor::TypeTranslationPreview;

  PlugIn();
  PlugIn(const PlugIn&) = delete;
  PlugIn& operator=(const PlugIn&) = delete;
  ~PlugIn();

  const Translation& translation() const noexcept { return *translation_; }

 private:
  Library library_;
  Translation* translation_;
};

}  // namespace vtlcmd::bench
