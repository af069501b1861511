#pragma once

#include <string>
#include <vector>

namespace vtlcmd::runner {

/// A scale of a picture, with marks at round numbers.
class Axis {
 public:
  /// From the multiple of a round step at or below `low` to the one at or above `high`, with about
  /// `marks` steps. Both are finite.
  static Axis rounded(double low, double high, int marks);

  /// From `low` to `high` exactly, with marks at both and at round numbers between. `isWhole`:
  /// marks at whole numbers only.
  static Axis exact(double low, double high, int marks, bool isWhole);

  /// From `low` to `high` exactly, with marks at round numbers alone.
  static Axis inner(double low, double high, int marks);

  /// The same with so much more room at both ends.
  Axis widened(double by) const;

  double low() const noexcept { return low_; }
  double high() const noexcept { return high_; }

  struct Mark {
    double place;
    std::string label;
  };
  const std::vector<Mark>& marks() const noexcept { return marks_; }

  /// Where a number lies between 0, the low end, and 1; in the middle when both ends are one.
  double share(double number) const;

 private:
  Axis(double low, double high) : low_(low), high_(high) {}
  /// Not nearer to an end than that share.
  void addInnerMarks(int marks, double step, double nearest);
  void addMark(double place, double step);

  double low_;
  double high_;
  std::vector<Mark> marks_;
};

/// A number with so many significant digits at most, without trailing zeros.
std::string shortNumber(double number, int digits = 6);

}  // namespace vtlcmd::runner
