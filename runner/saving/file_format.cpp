#include "saving/file_format.h"

#include <algorithm>
#include <iterator>

#include "saving/npy_writer.h"
#include "saving/ply_writer.h"
#include "text/path_text.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

constexpr FileFormat formats[] = {
    {".npy", "numbers, vectors, matrices and arrays of them", fitsNpy,
     [](std::ostream& stream, const ValueType& type, const Orvel::Value& value) {
       writeNpy(stream, type, value);
       return std::string();
     }},
    {".ply", "a mesh, which is an Object",
     [](const ValueType& type) {
       return type.depth == 0 && type.element == valueType<ObjectPtr>().name;
     },
     [](std::ostream& stream, const ValueType&, const Orvel::Value& value) {
       return writePly(stream, value);
     }},
};

}  // namespace

const FileFormat* fileFormatOf(const std::filesystem::path& file) {
  const std::string extension = extensionOf(file);
  const auto* row = std::find_if(std::begin(formats), std::end(formats),
                                 [&](const auto& format) { return format.extension == extension; });
  return row == std::end(formats) ? nullptr : row;
}

std::string fileFormatNames() {
  std::string names;
  for (const FileFormat& format : formats)
    names += (names.empty() ? "" : " and ") + std::string(format.extension);
  return names;
}

}  // namespace vtlcmd::runner
