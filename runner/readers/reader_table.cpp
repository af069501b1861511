#include "readers/reader_table.h"

#include <algorithm>
#include <string>

#include "readers/input_file.h"
#include "readers/mesh_import.h"
#include "readers/obj.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

void sendObj(const std::filesystem::path& path, bool, DataWriter& writer) {
  InputFile file(path);
  writer.writeMesh(parseObj(file));
}

void sendImported(const std::filesystem::path& file, bool anywhere, DataWriter& writer) {
  writer.writeMesh(importMesh(file, anywhere));
}

constexpr Reader readers[] = {
    {".npy", nullptr, false},
    {".obj", sendObj, true},
};

constexpr Reader otherFiles{"", sendImported, true};

}  // namespace

const Reader& readerFor(const std::filesystem::path& file) {
  std::string extension = fileText(file.extension());
  for (char& c : extension) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  const auto* row = std::find_if(std::begin(readers), std::end(readers), [&](const Reader& reader) {
    return reader.extension == extension;
  });
  return row == std::end(readers) ? otherFiles : *row;
}

}  // namespace vtlcmd::runner
