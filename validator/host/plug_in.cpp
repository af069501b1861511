#include "host/plug_in.h"

#include "checks/outcome.h"
#include "platform/library.h"

namespace vtlcmd::validator {

PlugIn::PlugIn(const std::filesystem::path& file) : library_(openLibrary(file)) {
  if (library_ == nullptr) throw Unloadable(libraryError());
  create_ = reinterpret_cast<Create>(functionOf(library_, "createVantrelTypeTranslation"));
  if (create_ == nullptr) {
    closeLibrary(library_);
    throw Unloadable("there is no function createVantrelTypeTranslation");
  }
}

PlugIn::~PlugIn() { closeLibrary(library_); }

// The contract: every object of the entry has the later executor's operation too.
Translation* PlugIn::create() const { return static_cast<Translation*>(create_()); }

Translator::Translator(const PlugIn& plugIn) : object_(plugIn.create()) {
  expect(object_ != nullptr, "the entry gives an object");
}

}  // namespace vtlcmd::validator
