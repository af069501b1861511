// Compares the statistics blocks of arrays with the model, for each element type that has one.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "element_generator.h"
#include "options.h"
#include "random_source.h"
#include "statistics_comparison.h"

namespace {

using namespace vtlcmd::oracle;

template <typename T>
std::string numbers(RandomSource& random, std::size_t count) {
  return statisticsDifference<T>(randomElements<T>(random, count));
}

template <std::size_t Width>
std::string vectors(RandomSource& random, std::size_t count) {
  return vectorStatisticsDifference<Width>(randomElements<float>(random, count * Width));
}

std::string booleans(RandomSource& random, std::size_t count) {
  return boolStatisticsDifference(randomElements<std::uint8_t>(random, count));
}

struct ElementType {
  const char* name;
  std::string (*difference)(RandomSource&, std::size_t count);
};

constexpr ElementType elementTypes[]{
    {"int", numbers<std::int32_t>},   {"uint", numbers<std::uint32_t>},
    {"long", numbers<std::int64_t>},  {"ulong", numbers<std::uint64_t>},
    {"short", numbers<std::int16_t>}, {"ushort", numbers<std::uint16_t>},
    {"float", numbers<float>},        {"double", numbers<double>},
    {"Math::float2", vectors<2>},     {"Math::float3", vectors<3>},
    {"Math::float4", vectors<4>},     {"bool", booleans},
};

/// Counts and sums of ones beyond 2^24, which single precision rounds.
std::string largeDifference() {
  constexpr std::size_t beyondPrecision = (1U << 24) + 1;
  std::string difference = statisticsDifference<float>(std::vector<float>(beyondPrecision, 1.0F));
  difference += statisticsDifference<std::int16_t>(std::vector<std::int16_t>(beyondPrecision, 1));
  difference += statisticsDifference<std::int32_t>(std::vector<std::int32_t>(beyondPrecision, 1));
  // Half of this count rounds up by one, past what is more than half of it.
  constexpr std::size_t count = (1U << 25) + 6;
  for (std::size_t trueCount = count / 2 - 1; trueCount < count / 2 + 3; ++trueCount) {
    std::vector<std::uint8_t> bytes(count, 0);
    std::fill_n(bytes.begin() + 1, trueCount, std::uint8_t{1});
    difference += boolStatisticsDifference(bytes);
  }
  return difference;
}

}  // namespace

int main(int argumentCount, char** arguments) try {
  std::uint64_t count = 50'000;
  std::uint64_t seed = 1;
  readOptions(argumentCount, arguments,
              "Compares array statistics with an independent model over seeded arrays.",
              {{"--count", &count, "Number of arrays"}, {"--seed", &seed, "Seed of the arrays"}});

  RandomSource random(seed);
  for (std::uint64_t index = 0; index < count; ++index) {
    const ElementType& type = elementTypes[index % std::size(elementTypes)];
    const std::string difference = type.difference(random, randomCount(random));
    if (difference.empty()) continue;
    std::cerr << "array " << index << " of seed " << seed << ", of " << type.name << ": "
              << difference;
    return 1;
  }
  const std::string difference = largeDifference();
  if (!difference.empty()) {
    std::cerr << "a large array: " << difference;
    return 1;
  }
  std::cout << count << " arrays, all element types: no difference\n";
  return 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 2;
}
