#include "nodes/families.h"
#include "nodes/operand.h"
#include "readers/input_file.h"
#include "readers/read_error.h"
#include "readers/text_lines.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "text/utf8.h"

namespace vtlcmd::runner::node_families {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

void requireUtf8(std::string_view line, std::size_t number) {
  while (!line.empty()) {
    if (!takeCharacter(line))
      throw ReadError("line " + std::to_string(number) + " isn't UTF-8 text");
  }
}

Orvel::Array<Orvel::String> linesOf(const std::filesystem::path& path) {
  InputFile file(path);
  TextLines lines(file);
  Orvel::Array<Orvel::String> texts;
  for (std::string line; lines.next(line);) {
    if (lines.number() == 1 && line.starts_with(byteOrderMark)) line.erase(0, byteOrderMark.size());
    requireUtf8(line, lines.number());
    texts.append(libraryText(line));
  }
  return texts;
}

Orvel::Value readLines(const NodeCall& call) {
  const std::filesystem::path path = call.pathFolder / filePath(standardText(call[0].getString()));
  call.onRead(path);
  try {
    return arrayValue(linesOf(path));
  } catch (const ReadError& error) {
    throw NodeError(fileText(path) + ": " + error.what());
  }
}

const NodeOperation textFileOperations[] = {
    {"read_lines",
     {{"path", &type_classes::path}},
     NodeSetting::none,
     [](const NodeTypes&) {
       return ValueType{valueType<Orvel::String>().name, 1};
     },
     readLines,
     "The lines of a UTF-8 text file without their ends, which are LF or CR LF; the last line may "
     "have none."},
};

}  // namespace

std::span<const NodeOperation> textFiles() { return textFileOperations; }

}  // namespace vtlcmd::runner::node_families
