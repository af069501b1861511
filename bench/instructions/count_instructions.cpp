#include <cstdlib>
#include <exception>
#include <gnu/libc-version.h>
#include <iostream>
#include <valgrind/callgrind.h>

#include "rows/rows.h"

namespace vtlcmd::bench {
namespace {

const char* processor() {
#if defined(__x86_64__)
  return __builtin_cpu_supports("avx2") ? "x86-64 with AVX2" : "x86-64";
#else
  return "another processor";
#endif
}

constexpr const char* compiler =
#if defined(__clang__)
    "clang++";
#else
    "g++";
#endif

/// Counts what remains of the first calls, which find nothing prepared.
void count(const TimedRow& row) {
  constexpr std::size_t calls = 20;
  if (row.prepare) row.prepare();
  row.subject(calls);
  if (row.prepare) row.prepare();
  CALLGRIND_ZERO_STATS;
  row.subject(calls);
  CALLGRIND_DUMP_STATS_AT(row.name.c_str());
  std::cout << calls << ' ' << row.name << '\n';
}

}  // namespace
}  // namespace vtlcmd::bench

/// To be run under callgrind. Makes it dump the instructions of each operation of the plug-in under
/// the operation's name. Prints what the counts depend on, then calls and name of each dump.
int main() {
  using namespace vtlcmd::bench;
  try {
    std::cout << compiler << ' ' << __VERSION__ << ", C library " << gnu_get_libc_version() << ", "
              << processor() << '\n';
    for (const TimedRow& row : operationRows(Scale::small())) count(row);
  } catch (const std::exception& error) {
    std::cerr << "count_instructions: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
