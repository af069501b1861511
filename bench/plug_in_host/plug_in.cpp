#include "plug_in_host/plug_in.h"

#include <dlfcn.h>
#include <stdexcept>

namespace vtlcmd::bench {

using VantrelGraph::Executor::TypeTranslation;

Library::Library(const char* file) : handle_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
  if (handle_ == nullptr) throw std::runtime_error(dlerror());
}

Library::~Library() { dlclose(handle_); }

TypeTranslation* Library::create() const {
  void* function = dlsym(handle_, "createVantrelTypeTranslation");
  if (function == nullptr) throw std::runtime_error(dlerror());
  return reinterpret_cast<TypeTranslation* (*)()>(function)();
}

PlugIn::PlugIn()
    : library_(VTLCMD_PLUG_IN), translation_(static_cast<Translation*>(library_.create())) {
  if (translation_ == nullptr) throw std::runtime_error("the plug-in gave no translation");
}

PlugIn::~PlugIn() { translation_->destroy(); }

}  // namespace vtlcmd::bench
