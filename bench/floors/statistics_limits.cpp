#include "floors/statistics_limits.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace vtlcmd::bench {
namespace {

void keep(const void* result) { asm volatile("" : : "r"(result) : "memory"); }

template <typename Number>
void addAll(const Number* elements, std::uint64_t count) {
  Number sum = 0;
  for (std::uint64_t i = 0; i < count; ++i) sum += elements[i];
  keep(&sum);
}

/// In registers of so many bytes. The last vector is left out: behind it a whole register may not
/// be read.
template <std::size_t Bytes, std::uint64_t Width>
void addVectors(const float* components, std::uint64_t count) {
  using Register __attribute__((vector_size(Bytes))) = float;
  Register sum{};
  for (std::uint64_t i = 0; i + 1 < count; ++i) {
    Register element;
    std::memcpy(&element, components + i * Width, Bytes);
    sum += element;
  }
  keep(&sum);
}

/// Four sums, so that no addition waits for another. Inlined, and so compiled for the processor of
/// the caller.
template <std::size_t Bytes>
__attribute__((always_inline)) inline void addBlocks(const void* bytes, std::uint64_t size) {
  using Register __attribute__((vector_size(Bytes))) = std::uint64_t;
  Register sums[4]{};
  // NOLINTNEXTLINE(modernize-use-auto): g++ would deduce a pointer to one integer
  const Register* position = static_cast<const Register*>(bytes);
  const Register* end = position + size / Bytes;
  for (; position != end; position += 4) {
    sums[0] += position[0];
    sums[1] += position[1];
    sums[2] += position[2];
    sums[3] += position[3];
  }
  sums[0] += sums[1] + sums[2] + sums[3];
  keep(&sums[0]);
}

#if defined(__x86_64__)
__attribute__((target("avx512f"))) void addIn64(const void* bytes, std::uint64_t size) {
  addBlocks<64>(bytes, size);
}
__attribute__((target("avx2"))) void addIn32(const void* bytes, std::uint64_t size) {
  addBlocks<32>(bytes, size);
}
#endif
void addIn16(const void* bytes, std::uint64_t size) { addBlocks<16>(bytes, size); }

using Adder = void (*)(const void* bytes, std::uint64_t size);

Adder widestAdder() {
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx512f")) return &addIn64;
  if (__builtin_cpu_supports("avx2")) return &addIn32;
#endif
  return &addIn16;
}

}  // namespace

void addOneByOne(const float* elements, std::uint64_t count) { addAll(elements, count); }
void addOneByOne(const double* elements, std::uint64_t count) { addAll(elements, count); }

void addVectorsOneByOne(const float* components, std::uint64_t count, std::uint64_t width) {
  switch (width) {
    case 2:
      return addVectors<8, 2>(components, count);
    case 3:
      return addVectors<16, 3>(components, count);
    case 4:
      return addVectors<16, 4>(components, count);
    default:
      std::abort();
  }
}

void addWidest(const void* bytes, std::uint64_t size) {
  static const Adder adder = widestAdder();
  adder(bytes, size);
}

}  // namespace vtlcmd::bench
