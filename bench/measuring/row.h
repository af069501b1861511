#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace vtlcmd::bench {

/// Does one kind of work so many times.
using Work = std::function<void(std::size_t calls)>;

/// One line of the table: what is measured, and beside it, on the same data and interleaved, what
/// can't be undercut.
struct TimedRow {
  std::string name;
  Work subject;
  Work limit;
  /// The largest ratio that is good enough; nothing where the ratio is only reported.
  std::optional<double> goal;
  /// What one timed batch does, and how many pairs of batches are compared.
  std::size_t calls = 1;
  std::size_t pairs = 1;
  /// Elements that one call works on; figures are per element.
  std::size_t elements = 1;
  /// Runs untimed before every batch. May be empty.
  std::function<void()> prepare;
  /// A part of the subject that the limit leaves out; its time is taken off. May be empty.
  Work fixedPart;
};

struct Pair {
  double subject;
  double limit;
};

/// A line of the table whose figures come from anywhere.
struct Row {
  std::string name;
  /// Of both figures.
  std::string unit;
  std::optional<double> goal;
  std::size_t pairs = 1;
  std::function<Pair()> measure;
};

/// Figures in nanoseconds of processor time, that of programs run included.
Row timed(TimedRow row);

}  // namespace vtlcmd::bench
