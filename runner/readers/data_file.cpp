#include "readers/data_file.h"

#include <new>
#include <stdexcept>

#include "readers/file_text.h"
#include "readers/foreign_file.h"
#include "readers/input_file.h"
#include "readers/read_error.h"
#include "readers/reader_table.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

/// Calls a function and puts the file's name before its errors.
template <typename Function>
auto naming(const std::filesystem::path& file, Function&& function) {
  try {
    // Some libraries don't tell why a file can't be opened.
    const InputFile readable(file);
    return function();
  } catch (const ReadError& error) {
    throw ReadError(fileText(file) + ": " + error.what(), error.isTransient());
  }
}

std::vector<DataValue> readArrayFile(const std::filesystem::path& file, NpyForm form) {
  InputFile input(file);
  NpyArray array = parseNpy(input, form);
  return {{"", array.value, std::move(array.facts), {}}};
}

}  // namespace

ValuePath valuePathFrom(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::path file = path.parent_path();
  if (!std::filesystem::is_regular_file(file, error)) return {path, {}};
  return {std::move(file), fileText(path.filename())};
}

std::vector<DataValue> readDataFile(const std::filesystem::path& file, NpyForm form) {
  return naming(file, [&] {
    return readerFor(file).send == nullptr ? readArrayFile(file, form)
                                           : readForeignFile(file, form);
  });
}

std::vector<DataValue> readArrays(const std::filesystem::path& file, NpyForm form) {
  return naming(file, [&] {
    const Reader& reader = readerFor(file);
    return reader.send == nullptr || reader.givesMesh ? readArrayFile(file, form)
                                                      : readForeignFile(file, form);
  });
}

std::vector<DataValue> readStandardInputArray(NpyForm form) {
  const std::string file = readStandardInput();
  MemorySource input({reinterpret_cast<const unsigned char*>(file.data()), file.size()});
  try {
    NpyArray array = parseNpy(input, form);
    return {{"", array.value, std::move(array.facts), {}}};
  } catch (const ReadError& error) {
    throw ReadError("the standard input: " + std::string(error.what()));
  }
}

DataValue readMesh(const std::filesystem::path& file) {
  return naming(file, [&] {
    if (!readerFor(file).givesMesh) throw ReadError("it is no mesh");
    return readForeignFile(file, {}).at(0);
  });
}

}  // namespace vtlcmd::runner
