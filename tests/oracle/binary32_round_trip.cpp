// Prints normal floats of both signs with nine digits, which tell any two of them apart, and parses
// them back to the same bits.

#include <array>
#include <atomic>
#include <bit>
#include <charconv>
#include <cstdint>
#include <exception>
#include <iostream>
#include <syncstream>
#include <thread>
#include <vector>

#include "options.h"
#include "vtlcmd/input/number_parsing.h"

namespace {

constexpr std::uint32_t signBit = 0x8000'0000;
constexpr std::uint32_t smallestNormal = 0x0080'0000;
constexpr std::uint32_t largestFinite = 0x7f7f'ffff;

/// Nine digits put the two ends outside the range, which is held against the double that the text
/// stands for: 1.17549435e-38 is less than the smallest normal float, 3.40282347e+38 more than the
/// largest one.
bool mustBeRefused(std::uint32_t magnitude) {
  return magnitude == smallestNormal || magnitude == largestFinite;
}

bool roundTrips(std::uint32_t bits) {
  std::array<char, 32> text;
  *std::to_chars(text.begin(), text.end(), std::bit_cast<float>(bits), std::chars_format::general,
                 9)
       .ptr = '\0';
  vtlcmd::ParseStatus status{};
  const auto value = vtlcmd::parseNumber<float>(text.data(), status);
  const bool good = mustBeRefused(bits & ~signBit)
                        ? !value && status == vtlcmd::ParseStatus::ParseOutOfRange
                        : value && status == vtlcmd::ParseStatus::ParseOk &&
                              std::bit_cast<std::uint32_t>(*value) == bits;
  if (!good) {
    std::osyncstream(std::cerr) << std::hex << "0x" << bits << std::dec << ", printed as "
                                << text.data() << '\n';
  }
  return good;
}

bool roundTripsWithBothSigns(std::uint32_t magnitude) {
  const bool positive = roundTrips(magnitude);
  return roundTrips(magnitude | signBit) && positive;
}

/// Every `stride`-th magnitude, dealt out in turn to `threads` runs.
std::uint64_t failuresOfRun(std::uint64_t run, std::uint64_t threads, std::uint64_t stride) {
  std::uint64_t failures = 0;
  for (std::uint64_t magnitude = smallestNormal + run * stride; magnitude <= largestFinite;
       magnitude += threads * stride) {
    if (!roundTripsWithBothSigns(static_cast<std::uint32_t>(magnitude))) ++failures;
  }
  return failures;
}

}  // namespace

int main(int argumentCount, char** arguments) try {
  std::uint64_t stride = 5;
  bool exhaustive = false;
  vtlcmd::oracle::readOptions(argumentCount, arguments,
                              "Prints floats with nine digits and parses them back.",
                              {{"--stride", &stride, "Take every so many", 1},
                               {"--exhaustive", &exhaustive, "Take every float there is"}});
  if (exhaustive) stride = 1;

  constexpr std::uint64_t threads = 2;
  // The upper end, whatever the stride.
  std::atomic<std::uint64_t> failures = roundTripsWithBothSigns(largestFinite) ? 0 : 1;
  {
    std::vector<std::jthread> runs;
    for (std::uint64_t run = 0; run < threads; ++run) {
      runs.emplace_back([&, run] { failures += failuresOfRun(run, threads, stride); });
    }
  }
  std::cout << "normal floats of both signs, stride " << stride << ": " << failures
            << " magnitudes fail\n";
  return failures == 0 ? 0 : 1;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 2;
}
