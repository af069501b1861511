// Compares everything that reads a port's text with the model, and numbers with what parsers of
// others read, for the texts on standard input, one a line. An argument is the least number of
// texts there must be.

#include <cstddef>
#include <exception>
#include <iostream>
#include <string>

#include "decimal_judges.h"
#include "input_comparison.h"

using namespace vtlcmd::oracle;

int main(int argumentCount, char** arguments) try {
  const std::size_t least = argumentCount > 1 ? std::stoul(arguments[1]) : 1;
  std::size_t count = 0;
  std::size_t differences = 0;
  for (std::string text; std::getline(std::cin, text); ++count) {
    std::string difference = firstDifference(text);
    if (difference.empty()) difference = firstDisagreement(text);
    if (difference.empty()) continue;
    std::cerr << "text " << count + 1 << ": " << difference;
    ++differences;
  }
  if (count < least) {
    std::cerr << count << " texts, less than " << least << '\n';
    return 1;
  }
  std::cout << count << " texts, " << differences << " differ\n";
  return differences == 0 ? 0 : 1;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 2;
}
