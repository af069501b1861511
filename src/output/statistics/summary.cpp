#include "output/statistics/summary.h"

#include <array>
#include <cfloat>
#include <cstddef>
#include <utility>

#include "host/imports/vantrel_math.h"
#include "output/statistics/average.h"

namespace vtlcmd {
namespace {

static_assert(FLT_EVAL_METHOD == 0, "sums are rounded to the element's own precision");

/// Smallest, largest and sum of the elements seen so far, from the first one on.
template <typename T>
class Running {
 public:
  explicit Running(T first) noexcept : minimum_(first), maximum_(first), sum_(first) {}

  void add(T element) noexcept {
    if (minimum_ > element) minimum_ = element;
    if (element > maximum_) maximum_ = element;
    sum_ = addWrapping(sum_, element);
  }

  Summary<T> summary(std::uint64_t count) const noexcept {
    return {minimum_, maximum_, averageOf(sum_, count)};
  }

 private:
  T minimum_;
  T maximum_;
  T sum_;
};

/// Of bytes that stand for truths, any byte but 0 for true.
template <>
class Running<bool> {
 public:
  explicit Running(unsigned char first) noexcept : minimum_(first), maximum_(first) {}

  void add(unsigned char element) noexcept {
    if (minimum_ > element) minimum_ = element;
    if (element > maximum_) maximum_ = element;
    if (element != 0) ++trueBehindFirst_;
  }

  Summary<bool> summary(std::uint64_t count) const noexcept {
    return {minimum_ != 0, maximum_ != 0, mostAreTrue(trueBehindFirst_, count)};
  }

 private:
  unsigned char minimum_;
  unsigned char maximum_;
  std::uint64_t trueBehindFirst_ = 0;
};

/// Component by component.
template <typename Component, std::size_t Count>
class Running<Vantrel::Math::Vector<Component, Count>> {
 public:
  using Vector = Vantrel::Math::Vector<Component, Count>;

  explicit Running(const Vector& first) noexcept
      : Running(first, std::make_index_sequence<Count>{}) {}

  void add(const Vector& element) noexcept {
    for (std::size_t i = 0; i < Count; ++i) components_[i].add(element.components[i]);
  }

  Summary<Vector> summary(std::uint64_t count) const noexcept {
    Summary<Vector> vectors;
    for (std::size_t i = 0; i < Count; ++i) {
      const Summary<Component> summary = components_[i].summary(count);
      vectors.minimum.components[i] = summary.minimum;
      vectors.maximum.components[i] = summary.maximum;
      vectors.average.components[i] = summary.average;
    }
    return vectors;
  }

 private:
  template <std::size_t... Index>
  Running(const Vector& first, std::index_sequence<Index...>) noexcept
      : components_{Running<Component>(first.components[Index])...} {}

  std::array<Running<Component>, Count> components_;
};

/// How elements are read: a byte that is neither 0 nor 1 may not be read as a bool.
template <typename T>
using Stored = std::conditional_t<std::is_same_v<T, bool>, unsigned char, T>;

}  // namespace

template <typename T>
Summary<T> summarise(const T* elements, std::uint64_t count) noexcept {
  const auto* stored = reinterpret_cast<const Stored<T>*>(elements);
  Running<T> running(stored[0]);
  for (std::uint64_t i = 1; i < count; ++i) running.add(stored[i]);
  return running.summary(count);
}

template Summary<bool> summarise(const bool*, std::uint64_t) noexcept;
template Summary<float> summarise(const float*, std::uint64_t) noexcept;
template Summary<double> summarise(const double*, std::uint64_t) noexcept;
template Summary<std::int16_t> summarise(const std::int16_t*, std::uint64_t) noexcept;
template Summary<std::uint16_t> summarise(const std::uint16_t*, std::uint64_t) noexcept;
template Summary<std::int32_t> summarise(const std::int32_t*, std::uint64_t) noexcept;
template Summary<std::uint32_t> summarise(const std::uint32_t*, std::uint64_t) noexcept;
template Summary<std::int64_t> summarise(const std::int64_t*, std::uint64_t) noexcept;
template Summary<std::uint64_t> summarise(const std::uint64_t*, std::uint64_t) noexcept;
template Summary<Vantrel::Math::float2> summarise(const Vantrel::Math::float2*,
                                                  std::uint64_t) noexcept;
template Summary<Vantrel::Math::float3> summarise(const Vantrel::Math::float3*,
                                                  std::uint64_t) noexcept;
template Summary<Vantrel::Math::float4> summarise(const Vantrel::Math::float4*,
                                                  std::uint64_t) noexcept;

}  // namespace vtlcmd
