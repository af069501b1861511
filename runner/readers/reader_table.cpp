#include "readers/reader_table.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "readers/archive.h"
#include "readers/csv.h"
#include "readers/input_file.h"
#include "readers/mesh_import.h"
#include "readers/obj.h"
#include "readers/read_error.h"
#include "text/library_text.h"
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

/// Each array by its file's name in the archive.
void sendArchive(const std::filesystem::path& file, bool, DataWriter& writer) {
  readArchive(file, [&](const std::string& name, std::span<const unsigned char> bytes) {
    constexpr std::string_view ending = ".npy";
    if (!name.ends_with(ending)) throw ReadError(inQuotes(name) + " in it is no array file");
    writer.writeArrayFile(name.substr(0, name.size() - ending.size()), bytes);
  });
}

void sendNumbers(std::string_view name, std::span<const std::uint64_t> shape,
                 std::span<const double> numbers, DataWriter& writer) {
  writer.writeArray(DataMessage::array, name, "f8", shape,
                    {reinterpret_cast<const unsigned char*>(numbers.data()), numbers.size_bytes()});
}

/// Each column by its name; a table without names as a whole.
void sendTable(const std::filesystem::path& path, bool, DataWriter& writer) {
  InputFile file(path);
  const Table table = parseCsv(file);
  const std::uint64_t shape[]{table.numbers.size() / table.columns, table.columns};
  if (table.names.empty()) {
    const std::size_t dimensions = table.columns == 1 ? 1 : 2;
    sendNumbers("", std::span(shape).first(dimensions), table.numbers, writer);
    return;
  }
  std::vector<double> column(shape[0]);
  for (std::size_t i = 0; i < table.columns; ++i) {
    for (std::size_t row = 0; row < column.size(); ++row)
      column[row] = table.numbers[row * table.columns + i];
    sendNumbers(table.names[i], std::span(shape).first(1), column, writer);
  }
}

constexpr Reader readers[] = {
    {".npy", nullptr, false},
    {".npz", sendArchive, false},
    {".csv", sendTable, false},
    {".obj", sendObj, true},
    // All other extensions.
    {"", sendImported, true},
};

}  // namespace

const Reader& readerFor(const std::filesystem::path& file) {
  const std::string extension = extensionOf(file);
  return *std::find_if(std::begin(readers), std::end(readers) - 1,
                       [&](const Reader& reader) { return reader.extension == extension; });
}

}  // namespace vtlcmd::runner
