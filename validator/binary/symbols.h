#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vtlcmd::validator {

/// What a shared library offers to the loader and asks of it. Names as they stand in the file.
struct BinarySymbols {
  std::vector<std::string> exports;
  std::vector<std::string> imports;
  std::vector<std::string> libraries;
};

/// Reads a 64-bit ELF or PE file. Throws std::runtime_error for anything else.
BinarySymbols readSymbols(const std::filesystem::path& file);

}  // namespace vtlcmd::validator
