#include "vtlcmd/output/array_text.h"

namespace vtlcmd {

Orvel::String arrayTypeName(const char* baseName, std::uint32_t levels) {
  Orvel::String name = baseName;
  for (std::uint32_t level = 0; level < levels; ++level)
    name = Orvel::String("array<") + name + ">";
  return name;
}

void writeShortNote(TextBuilder& text, std::uint64_t total, const char* typeWord) {
  text << "(0 out of " << total << " " << typeWord << ")";
}

void writeRefusal(TextBuilder& text, const char* typeWord) {
  text << "{non supported array of " << typeWord << " }";
}

}  // namespace vtlcmd
