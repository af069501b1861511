// Compares everything that reads a port's text with the model, for each type and text.

#include <cstdint>
#include <exception>
#include <iostream>
#include <string>

#include "input_comparison.h"
#include "options.h"
#include "text_generator.h"

using namespace vtlcmd::oracle;

int main(int argumentCount, char** arguments) try {
  std::uint64_t count = 50'000;
  std::uint64_t seed = 1;
  bool hard = false;
  readOptions(argumentCount, arguments,
              "Compares the parsers with an independent model over seeded texts.",
              {{"--count", &count, "Number of texts"},
               {"--seed", &seed, "Seed of the texts"},
               {"--hard", &hard, "Only numbers at limits and half-way between two neighbours"}});

  TextGenerator generator(seed, hard ? TextFamily::hardNumbers : TextFamily::mixed);
  for (std::uint64_t index = 0; index < count; ++index) {
    const std::string difference = firstDifference(generator.next());
    if (difference.empty()) continue;
    std::cerr << "text " << index << " of seed " << seed << (hard ? ", hard" : "") << ": "
              << difference;
    return 1;
  }
  std::cout << count << " texts, all types: no difference\n";
  return 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 2;
}
