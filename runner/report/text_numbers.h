#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vtlcmd::runner {

struct NamedNumber {
  std::string name;
  double number;
};

/// Numbers that are looked at side by side.
struct NumberGroup {
  /// Empty for the only group of a text.
  std::string title;
  std::vector<NamedNumber> numbers;
};

/// The numbers in an output's report text: a number, the components of a vector, the statistics of
/// arrays and the parts of an object. Texts without such numbers have none; `typeName` keeps
/// strings out, whatever they hold.
std::vector<NumberGroup> numbersIn(std::string_view typeName, std::string_view text);

}  // namespace vtlcmd::runner
