#include "text_generator.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "number_texts.h"

namespace vtlcmd::oracle {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view spaceBytes = " \t\n\v\f\r";

std::string word(RandomSource& random) {
  static constexpr std::array words{
      "true"sv,
      "false"sv,
      "TRUE"sv,
      "True"sv,
      "true "sv,
      " false"sv,
      "true\0"sv,
      "inf"sv,
      "-INF"sv,
      "infinity"sv,
      "infinitely"sv,
      "nan"sv,
      "NaN(12)"sv,
      "nan(1 2)"sv,
      "-nan("sv,
      "0x"sv,
      "-0x.p1"sv,
      "0x.8"sv,
      "0xp3"sv,
      "0x1p"sv,
      "0X1P+"sv,
      "1e+"sv,
      "1e"sv,
      "."sv,
      "+"sv,
      "-"sv,
      "- 1"sv,
      "--1"sv,
      "+-1"sv,
      "-.e1"sv,
      "5."sv,
      ".5"sv,
      ""sv,
      "-0"sv,
      "-0x0p9"sv,
      "1e999999999999999999999"sv,
      "-1e-999999999999999999999"sv,
      "0e999999999999999999999"sv,
      "0x1p-99999999999999999999"sv,
  };
  return std::string(random.pick(words));
}

std::string bytes(RandomSource& random) {
  std::string text(random.below(13), '\0');
  for (char& byte : text) byte = static_cast<char>(random.below(256));
  return text;
}

std::string numberBytes(RandomSource& random) {
  return randomString(random, random.below(13), "0123456789012345.+-eExXpPaAfFinN, \t");
}

std::string spaces(RandomSource& random) {
  return randomString(random, 1 + random.below(3), spaceBytes);
}

/// One byte put in, taken out, replaced or doubled.
std::string mutated(RandomSource& random, std::string text) {
  static constexpr std::string_view bytesPutIn = "\0 ,;\t\v\x85\xa0\xff.-+eExpn019"sv;
  const std::size_t at = random.below(text.size() + 1);
  const auto here = text.begin() + static_cast<std::ptrdiff_t>(at);
  const bool atEnd = here == text.end();
  switch (random.below(4)) {
    case 0:
      if (!atEnd) text.erase(here);
      break;
    case 1:
      if (!atEnd) *here = random.pick(bytesPutIn);
      break;
    case 2:
      if (!atEnd) text.insert(here, *here);
      break;
    default:
      text.insert(here, random.pick(bytesPutIn));
  }
  return text;
}

struct Kind {
  std::uint64_t weight;
  std::string (*make)(RandomSource&);
};

constexpr Kind scalarKinds[]{
    {6, word},     {4, bytes},         {10, numberBytes}, {10, integer},     {15, integerLimit},
    {15, decimal}, {12, decimalLimit}, {6, decimalHalf},  {10, hexadecimal}, {5, hexadecimalHalf},
};

constexpr Kind hardKinds[]{
    {1, integerLimit}, {3, decimalLimit}, {6, decimalHalf}, {2, hexadecimalHalf}};

std::string scalar(RandomSource& random) {
  if (random.oneIn(1000)) return longNumber(random);
  std::string text = random.pickWeighted(scalarKinds).make(random);
  if (random.oneIn(8)) text = spaces(random) + text;
  if (random.oneIn(8)) text += spaces(random);
  if (random.oneIn(5)) text = mutated(random, std::move(text));
  return text;
}

std::string vector(RandomSource& random) {
  // The pieces of a vector are mostly good, or hardly any whole vector would be.
  const auto piece = [&] { return random.oneIn(6) ? scalar(random) : decimal(random); };
  std::string text = piece();
  for (std::uint64_t more = 1 + random.below(4); more > 0; --more) text += ',' + piece();
  return text;
}

}  // namespace

std::string TextGenerator::next() {
  if (family_ == TextFamily::hardNumbers) {
    return random_.pickWeighted(hardKinds).make(random_);
  }
  return random_.oneIn(4) ? vector(random_) : scalar(random_);
}

}  // namespace vtlcmd::oracle
