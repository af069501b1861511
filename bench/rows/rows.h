#pragma once

#include <cstddef>
#include <vector>

#include "measuring/row.h"

/// The lines of the table, one function a file. Every row keeps alive what it works on.

namespace vtlcmd::bench {

/// How much data the rows work on.
struct Scale {
  /// Bytes of an array that stays in the second-level cache, and of one that fits in no cache.
  std::size_t cachedBytes;
  std::size_t memoryBytes;
  std::size_t strings;
  /// The most ports, messages and frames.
  std::size_t ports;
  std::size_t messages;
  std::size_t frames;
  /// Frames of which the length of one is taken.
  std::size_t timedFrames;
  std::size_t reportBytes;
  /// Frames of some 20 and 0.1 ms that processes share.
  std::size_t longFrames;
  std::size_t shortFrames;

  static constexpr Scale full() {
    constexpr std::size_t mebi = 1 << 20;
    return {mebi / 2,  128 * mebi, 1'000'000,   100'000, 1'000'000,
            1'000'000, 20'000,     1024 * mebi, 100,     10'000};
  }
  static constexpr Scale small() {
    return {1 << 14, 1 << 16, 1'000, 100, 1'000, 100, 100, 1 << 20, 2, 10};
  }
};

std::vector<TimedRow> inputRows();
std::vector<TimedRow> outputRows();
std::vector<TimedRow> numberTextRows();
std::vector<TimedRow> stringListRows(const Scale& scale);
std::vector<TimedRow> suppressedRows(const Scale& scale);
std::vector<TimedRow> cachedStatisticsRows(const Scale& scale);
std::vector<TimedRow> loadRows();
std::vector<TimedRow> memoryStatisticsRows(const Scale& scale);
std::vector<TimedRow> growthRows(const Scale& scale);
std::vector<TimedRow> frameRows(const Scale& scale);
std::vector<Row> workerRows(const Scale& scale);
Row reportMemoryRow(const Scale& scale);

/// Those of one operation of the plug-in each. Their instructions are counted too.
std::vector<TimedRow> operationRows(const Scale& scale);
/// Those of more data, of whole runs and of the runner.
std::vector<TimedRow> runRows(const Scale& scale);

}  // namespace vtlcmd::bench
