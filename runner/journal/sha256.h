#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// The hash SHA-256 of FIPS 180-4, over bytes that come piece by piece.
class Sha256 {
 public:
  void add(std::string_view bytes);

  /// The hash in 64 hexadecimal digits. Called once, at the end.
  std::string finish();

 private:
  static constexpr std::size_t blockSize = 64;

  void addBlock(const unsigned char* block) noexcept;

  std::array<std::uint32_t, 8> state_{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                      0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  /// The bytes behind the last whole block.
  std::array<unsigned char, blockSize> rest_{};
  std::uint64_t length_ = 0;
};

}  // namespace vtlcmd::runner
