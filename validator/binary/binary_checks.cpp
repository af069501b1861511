#include <algorithm>
#include <array>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>

#include "binary/closed_operations.h"
#include "binary/symbols.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/session.h"

namespace vtlcmd::validator {
namespace {

constexpr const char* entryName = "createVantrelTypeTranslation";

constexpr std::array<std::string_view, 5> closedLibraries{
    "OrvelCore", "OrvelSDK", "VantrelBoardExecutor", "VantrelObject", "VantrelGeometry"};

/// The beginnings of the file names of what the language and the system bring.
constexpr std::array<std::string_view, 14> standardLibraries{
    "libstdc++",  "libc++", "libm.",    "libgcc_s", "libc.",    "ld-linux",    "libunwind",
    "libpthread", "libdl.", "KERNEL32", "msvcrt",   "ucrtbase", "api-ms-win-", "libwinpthread"};

template <typename Names>
bool beginsAsOneOf(std::string_view name, const Names& beginnings) {
  return std::any_of(beginnings.begin(), beginnings.end(),
                     [&](std::string_view beginning) { return name.starts_with(beginning); });
}

std::string demangled(const std::string& symbol) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> text(
      abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status), &std::free);
  std::string name = status == 0 ? text.get() : symbol;
  // What 64 bits are called on Windows.
  for (std::size_t at = 0; (at = name.find("long long", at)) != std::string::npos;)
    name.erase(at, 5);
  return name;
}

/// Whether a demangled name is one of the closed libraries' namespaces.
bool isClosed(std::string_view name) {
  for (const std::string_view beginning : {"typeinfo for ", "vtable for "}) {
    if (name.starts_with(beginning)) name.remove_prefix(beginning.size());
  }
  return beginsAsOneOf(name,
                       std::array<std::string_view, 3>{"Orvel::", "Vantrel::", "VantrelGraph::"});
}

void oneExport(Session& session) {
  expectLines("exports", readSymbols(session.file()).exports, {entryName});
}

void knownImports(Session& session) {
  for (const std::string& symbol : readSymbols(session.file()).imports) {
    const std::string name = demangled(symbol);
    if (!isClosed(name) || isClosedOperation(name)) continue;
    throw Failed("not among the operations that hosts have to bring: " + name);
  }
}

void knownLibraries(Session& session) {
  const auto libraries = readSymbols(session.file()).libraries;
  for (const std::string_view library : libraries) {
    if (library.starts_with("lib") && beginsAsOneOf(library.substr(3), closedLibraries)) continue;
    if (beginsAsOneOf(library, closedLibraries) || beginsAsOneOf(library, standardLibraries))
      continue;
    throw Failed("needs " + std::string(library));
  }
}

void allLibraries(Session& session) {
  const auto libraries = readSymbols(session.file()).libraries;
  for (const std::string_view closed : closedLibraries) {
    if (std::none_of(libraries.begin(), libraries.end(), [&](const std::string& library) {
          return library.find(closed) != std::string::npos;
        }))
      throw Warned("doesn't need " + std::string(closed));
  }
}

}  // namespace

void addBinaryChecks(CheckList& checks) {
  checks.push_back(
      {"binary-exports", "The library exports its one function and nothing else.", oneExport});
  checks.push_back({"binary-imports",
                    "Of the closed libraries it imports only what hosts have to bring.",
                    knownImports});
  checks.push_back({"binary-libraries",
                    "It needs the closed libraries and the standard library alone.",
                    knownLibraries});
  checks.push_back(
      {"binary-closed-libraries", "It needs each of the five closed libraries.", allLibraries});
}

}  // namespace vtlcmd::validator
