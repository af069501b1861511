#pragma once

#include <cstdint>
#include <initializer_list>
#include <variant>

namespace vtlcmd::oracle {

struct Option {
  /// As on the command line: "--count".
  const char* name;
  /// Where a number that is given goes, or that the option is there.
  std::variant<std::uint64_t*, bool*> target;
  const char* help;
  /// Of a number.
  std::uint64_t least = 0;
};

/// Reads an oracle's command line; `purpose` is a sentence of its help. Ends the process, with 0
/// behind the help and with another code where a word is wrong, which is said.
void readOptions(int argumentCount, char** arguments, const char* purpose,
                 std::initializer_list<Option> options);

}  // namespace vtlcmd::oracle
