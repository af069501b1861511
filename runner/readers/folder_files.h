#pragma once

#include <array>
#include <assimp/DefaultIOSystem.h>
#include <filesystem>
#include <string>

namespace vtlcmd::runner {

/// The files that the mesh import library may open: the mesh itself and, unless anything goes, only
/// regular files in or below the folder in which the mesh stands or, for a link, the file that it
/// leads to.
class FolderFiles final : public Assimp::DefaultIOSystem {
 public:
  FolderFiles(const std::filesystem::path& mesh, bool anywhere);

  bool Exists(const char* name) const override;
  Assimp::IOStream* Open(const char* name, const char* mode) override;

  /// Why the first file was refused; empty when none was.
  const std::string& refusal() const { return refusal_; }

 private:
  bool isInside(const std::filesystem::path& file) const;

  std::array<std::filesystem::path, 2> folders_;
  bool anywhere_;
  mutable std::string refusal_;
};

}  // namespace vtlcmd::runner
