#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

#include "values/value_type.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd::runner {

/// How values are written to files of one kind.
struct FileFormat {
  /// In small letters.
  std::string_view extension;
  /// The types that `fits` admits, in words.
  std::string_view types;
  bool (*fits)(const ValueType& type);
  /// Writes a value of such a type. Gives what a user should know of the file, empty for nothing.
  /// Throws std::invalid_argument for a value that the format has no place for.
  std::string (*write)(std::ostream& stream, const ValueType& type, const Orvel::Value& value);
};

/// The format for a file's extension, in whatever case; null when there is none.
const FileFormat* fileFormatOf(const std::filesystem::path& file);

/// ".npy and .ply"
std::string fileFormatNames();

}  // namespace vtlcmd::runner
