#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "readers/byte_source.h"

namespace vtlcmd::runner {

/// A table of numbers.
struct Table {
  /// By column, from a first line that isn't numbers alone; none without such a line.
  std::vector<std::string> names;
  std::size_t columns = 0;
  /// Row by row.
  std::vector<double> numbers;
};

/// The numbers of a CSV file: fields between commas, in quotes or not, in rows of equal length.
/// Empty lines are left out. Throws ReadError, which names the line and leaves it to the caller to
/// name the file.
Table parseCsv(ByteSource& file);

}  // namespace vtlcmd::runner
