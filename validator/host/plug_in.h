#pragma once

#include <filesystem>

#include "vtlcmd/host/imports/vantrel_executor.h"

namespace vtlcmd::validator {

using Translation = VantrelGraph::Executor::TypeTranslationPreview;

/// A plug-in as any host has it: a library with one function, loaded while this lives.
class PlugIn {
 public:
  /// Throws Unloadable.
  explicit PlugIn(const std::filesystem::path& file);
  PlugIn(const PlugIn&) = delete;
  PlugIn& operator=(const PlugIn&) = delete;
  ~PlugIn();

  /// A new object, to be given up through `destroy`; null when the plug-in says so.
  Translation* create() const;

 private:
  using Create = VantrelGraph::Executor::TypeTranslation* (*)();

  void* library_;
  Create create_;
};

/// Gives up its object at its end.
class Translator {
 public:
  /// Throws Failed when there is no object.
  explicit Translator(const PlugIn& plugIn);
  Translator(const Translator&) = delete;
  Translator& operator=(const Translator&) = delete;
  ~Translator() { object_->destroy(); }

  const Translation& operator*() const noexcept { return *object_; }
  const Translation* operator->() const noexcept { return object_; }

 private:
  Translation* object_;
};

}  // namespace vtlcmd::validator
