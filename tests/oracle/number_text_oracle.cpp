// Holds the text of numbers against what a stream in its default state writes, in two global
// locales and all rounding modes.

#include <array>
#include <atomic>
#include <bit>
#include <cfenv>
#include <cmath>
#include <cstdint>
#include <exception>
#include <iostream>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <syncstream>
#include <thread>
#include <vector>

#include "options.h"
#include "random_source.h"
#include "support/scoped_locale.h"
#include "vtlcmd/text/text_builder.h"

namespace {

using vtlcmd::oracle::RandomSource;

constexpr std::uint64_t threadCount = 2;

struct Amounts {
  /// Every so many bit patterns of a float.
  std::uint64_t stride;
  std::uint64_t doubles;
};

struct RoundingMode {
  const char* name;
  int mode;
};
constexpr std::array<RoundingMode, 4> roundingModes{{{"to nearest", FE_TONEAREST},
                                                     {"upward", FE_UPWARD},
                                                     {"downward", FE_DOWNWARD},
                                                     {"toward zero", FE_TOWARDZERO}}};

/// Compares numbers one by one, for one thread.
class Comparison {
 public:
  template <typename Number>
  void compare(Number number) {
    stream_.str({});
    stream_ << number;
    vtlcmd::TextBuilder text(0);
    text << number;
    ++count_;
    if (text.text() == stream_.view()) return;
    if (failures_++ == 0) {
      std::osyncstream(std::cerr) << "a stream writes '" << stream_.view() << "', the text has '"
                                  << text.text() << "'\n";
    }
  }

  std::uint64_t count() const { return count_; }
  std::uint64_t failures() const { return failures_; }

 private:
  std::ostringstream stream_;
  std::uint64_t count_ = 0;
  std::uint64_t failures_ = 0;
};

void compareFloats(Comparison& comparison, std::uint64_t run, std::uint64_t stride) {
  constexpr std::uint64_t patterns = std::uint64_t{1} << 32U;
  for (std::uint64_t bits = run * stride; bits < patterns; bits += threadCount * stride) {
    comparison.compare(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
  }
}

/// A number as people write it: few digits, a small power of ten.
double decimalNumber(RandomSource& random) {
  const double digits = static_cast<double>(random.between(-9'999'999, 9'999'999));
  return digits * std::pow(10.0, static_cast<double>(random.between(-12, 12)));
}

/// Seven digits of which the last is a 5 lie halfway between two texts of six.
void compareTies(Comparison& comparison, std::uint64_t stride) {
  for (std::uint64_t digits = 1'000'005; digits < 10'000'000; digits += 10 * stride) {
    for (const double scale : {1.0, 0.5, 0.125, 1024.0}) {
      comparison.compare(static_cast<double>(digits) * scale);
    }
  }
}

void compareIntegers(Comparison& comparison, RandomSource& random) {
  const std::uint64_t bits = random.bits() >> random.below(64);
  comparison.compare(bits);
  comparison.compare(static_cast<std::int64_t>(bits));
  comparison.compare(static_cast<std::uint32_t>(bits));
  comparison.compare(static_cast<std::int32_t>(bits));
  comparison.compare(static_cast<std::uint16_t>(bits));
  comparison.compare(static_cast<std::int16_t>(bits));
}

void compareRun(Comparison& comparison, std::uint64_t run, const Amounts& amounts) {
  constexpr std::uint64_t everySoManyAnInteger = 16;
  RandomSource random(run + 1);
  compareFloats(comparison, run, amounts.stride);
  if (run == 0) compareTies(comparison, amounts.doubles < 1'000'000 ? 101 : 1);
  for (std::uint64_t i = run; i < amounts.doubles; i += threadCount) {
    comparison.compare(std::bit_cast<double>(random.bits()));
    comparison.compare(decimalNumber(random));
    if (i % everySoManyAnInteger < threadCount) compareIntegers(comparison, random);
  }
}

struct Counts {
  std::uint64_t numbers = 0;
  std::uint64_t failures = 0;
};

/// Adds what one rounding mode gives in the global locale of the moment.
void compareIn(const RoundingMode& mode, const char* locale, const Amounts& amounts, Counts& all) {
  std::atomic<std::uint64_t> count = 0;
  std::atomic<std::uint64_t> failures = 0;
  {
    std::vector<std::jthread> runs;
    for (std::uint64_t run = 0; run < threadCount; ++run) {
      runs.emplace_back([&, run] {
        std::fesetround(mode.mode);
        Comparison comparison;
        compareRun(comparison, run, amounts);
        count += comparison.count();
        failures += comparison.failures();
      });
    }
  }
  std::cout << locale << " locale, rounding " << mode.name << ": " << count << " numbers, "
            << failures << " differ" << std::endl;
  all.numbers += count;
  all.failures += failures;
}

}  // namespace

int main(int argumentCount, char** arguments) try {
  Amounts amounts{65'537, 20'000};
  bool exhaustive = false;
  vtlcmd::oracle::readOptions(
      argumentCount, arguments, "Holds the text of numbers against a stream's.",
      {{"--stride", &amounts.stride, "Take every so many floats", 1},
       {"--doubles", &amounts.doubles, "Pairs of doubles"},
       {"--exhaustive", &exhaustive, "Take every float there is, and ten million doubles"}});
  if (exhaustive) amounts = {1, 5'000'000};

  Counts all;
  compareIn(roundingModes[0], "classic", amounts, all);
  // Elsewhere the stream itself writes the text: what is looked at is that it does.
  const Amounts few{amounts.stride * 64 + 1, amounts.doubles / 8};
  for (const RoundingMode& mode : roundingModes) {
    if (mode.mode != FE_TONEAREST) compareIn(mode, "classic", few, all);
    const vtlcmd::testing::GroupingLocale locale;
    compareIn(mode, "grouping", few, all);
  }
  std::cout << all.numbers << " numbers, " << all.failures << " differ\n";
  return all.failures == 0 ? 0 : 1;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 2;
}
