#pragma once

#include <locale>
#include <string>

namespace vtlcmd::testing {

/// A comma in front of decimals, points between thousands. Named locales of that form are on few
/// machines.
class CommaAndPoints : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// A global locale of that form while it lives.
class GroupingLocale {
 public:
  GroupingLocale()
      : before_(std::locale::global(std::locale(std::locale::classic(), new CommaAndPoints))) {}
  GroupingLocale(const GroupingLocale&) = delete;
  GroupingLocale& operator=(const GroupingLocale&) = delete;
  ~GroupingLocale() { std::locale::global(before_); }

 private:
  std::locale before_;
};

}  // namespace vtlcmd::testing
