#include "execution/plug_in.h"

#include <array>
#include <string>
#include <system_error>

#include "platform/library_file.h"
#include "platform/process.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* entryName = "createVantrelTypeTranslation";
using Entry = VantrelGraph::Executor::TypeTranslation* (*)();

/// Seen from the program's folder: in a build, and as installed.
#if defined(_WIN32)
constexpr std::array plugInPlaces{"VtlCmdTranslation.dll"};
#else
constexpr std::array plugInPlaces{"../lib/libVtlCmdTranslation.so",
                                  VTLCMD_PLUG_IN_FOLDER "/libVtlCmdTranslation.so"};
#endif

}  // namespace

PlugIn::PlugIn(const std::filesystem::path& file) {
  // A bare name would be searched for among the system's libraries.
  std::error_code ignored;
  const std::filesystem::path absolute = std::filesystem::absolute(file, ignored);
  library_ = openLibrary(absolute);
  if (library_ == nullptr)
    throw PlugInError("the plug-in " + fileText(file) + " can't be loaded: " + libraryError());
  const auto create = reinterpret_cast<Entry>(functionOf(library_, entryName));
  VantrelGraph::Executor::TypeTranslation* created = create == nullptr ? nullptr : create();
  if (created == nullptr) {
    closeLibrary(library_);
    throw PlugInError(fileText(file) + (create == nullptr ? " is no plug-in: it doesn't export " +
                                                                std::string(entryName)
                                                          : " gave no translation: out of memory"));
  }
  // The entry makes objects of the interface with all twelve operations, by agreement.
  translation_ = static_cast<Translation*>(created);
}

PlugIn::~PlugIn() {
  translation_->destroy();
  closeLibrary(library_);
}

std::filesystem::path ownPlugIn() {
  const std::filesystem::path folder = ownFile().parent_path();
  for (const char* place : plugInPlaces) {
    std::error_code error;
    std::filesystem::path file = (folder / place).lexically_normal();
    if (std::filesystem::exists(file, error)) return file;
  }
  return (folder / plugInPlaces.front()).lexically_normal();
}

}  // namespace vtlcmd::runner
