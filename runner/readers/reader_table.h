#pragma once

#include <filesystem>
#include <string_view>

#include "readers/data_writer.h"

namespace vtlcmd::runner {

/// How files of one kind are read.
struct Reader {
  /// In small letters; empty for all others.
  std::string_view extension;
  /// Reads a file and sends what is in it; for a process of its own. Null for the program's own
  /// format, which is read without one. Throws ReadError, which doesn't name the file.
  void (*send)(const std::filesystem::path& file, bool anywhere, DataWriter& writer);
  bool givesMesh;
};

/// The reader for a file's extension, in whatever case; that of the mesh import library for unknown
/// ones.
const Reader& readerFor(const std::filesystem::path& file);

}  // namespace vtlcmd::runner
