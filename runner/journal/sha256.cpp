#include "journal/sha256.h"

#include <algorithm>
#include <bit>

namespace vtlcmd::runner {
namespace {

constexpr std::array<std::uint32_t, 64> roundConstants{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::uint32_t bigEndianWord(const unsigned char* bytes) noexcept {
  std::uint32_t word = 0;
  for (int i = 0; i < 4; ++i) word = (word << 8U) | bytes[i];
  return word;
}

}  // namespace

void Sha256::add(std::string_view bytes) {
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t count = bytes.size();
  while (count > 0) {
    const std::size_t filled = length_ % blockSize;
    const std::size_t taken = std::min(count, blockSize - filled);
    if (taken == blockSize) {
      addBlock(data);
    } else {
      std::copy_n(data, taken, rest_.begin() + static_cast<std::ptrdiff_t>(filled));
      if (filled + taken == blockSize) addBlock(rest_.data());
    }
    data += taken;
    count -= taken;
    length_ += taken;
  }
}

std::string Sha256::finish() {
  const std::uint64_t bits = length_ * 8;
  std::string end("\x80", 1);
  while ((length_ + end.size()) % blockSize != blockSize - sizeof bits) end += '\0';
  for (int shift = 56; shift >= 0; shift -= 8) end += static_cast<char>((bits >> shift) & 0xFFU);
  add(end);
  std::string digits;
  for (const std::uint32_t word : state_) {
    for (int shift = 28; shift >= 0; shift -= 4)
      digits += "0123456789abcdef"[(word >> shift) & 15U];
  }
  return digits;
}

void Sha256::addBlock(const unsigned char* block) noexcept {
  using std::rotr;
  std::array<std::uint32_t, 64> words;
  for (std::size_t i = 0; i < 16; ++i) words[i] = bigEndianWord(block + 4 * i);
  for (std::size_t i = 16; i < words.size(); ++i) {
    const std::uint32_t early = words[i - 15];
    const std::uint32_t late = words[i - 2];
    words[i] = words[i - 16] + (rotr(early, 7) ^ rotr(early, 18) ^ (early >> 3U)) + words[i - 7] +
               (rotr(late, 17) ^ rotr(late, 19) ^ (late >> 10U));
  }
  auto [a, b, c, d, e, f, g, h] = state_;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::uint32_t first = h + (rotr(e, 6) ^ rotr(e, 11) ^ rotr(e, 25)) +
                                ((e & f) ^ (~e & g)) + roundConstants[i] + words[i];
    const std::uint32_t second =
        (rotr(a, 2) ^ rotr(a, 13) ^ rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
    h = g;
    g = f;
    f = e;
    e = d + first;
    d = c;
    c = b;
    b = a;
    a = first + second;
  }
  const std::array<std::uint32_t, 8> result{a, b, c, d, e, f, g, h};
  for (std::size_t i = 0; i < state_.size(); ++i) state_[i] += result[i];
}

}  // namespace vtlcmd::runner
