#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// What a fuzzer calls with bytes of its own making, many times in one process. Gives 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vtlcmd::fuzz {

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace vtlcmd::fuzz
