#pragma once

#include "host/imports/api.h"

namespace Orvel {

/// A position in a sequence that the library owns. The bodies are the library's: it instantiates
/// the three classes for every element type that it hands out.
template <typename Element>
class Iterator {
 public:
  explicit Iterator(const Element* position) noexcept;
  Iterator(const Iterator& other) noexcept;
  ~Iterator();

  const Element* operator->() const noexcept;
  bool operator!=(const Iterator& other) const noexcept;

 protected:
  const Element* position_;
};

template <typename Element>
class ForwardIterator : public Iterator<Element> {
 public:
  explicit ForwardIterator(const Element* position) noexcept;
  ForwardIterator(const ForwardIterator& other) noexcept;
  ~ForwardIterator();

  /// Advances; gives the position before.
  ForwardIterator operator++(int) noexcept;
};

template <typename Element>
class BidirectionalIterator : public ForwardIterator<Element> {
 public:
  explicit BidirectionalIterator(const Element* position) noexcept;
  BidirectionalIterator(const BidirectionalIterator& other) noexcept;
  ~BidirectionalIterator();
};

}  // namespace Orvel
