#pragma once

#include "vtlcmd/host/imports/api.h"

namespace Orvel {

class StructType;

/// A position in a sequence that the library owns; valid as long as the sequence is. The bodies are
/// the library's: it instantiates the three classes for every element type that it hands out.
template <typename Element>
class Iterator {
 public:
  Iterator(const Iterator& other) noexcept;
  ~Iterator();

  /// The element, the sequence's own; never at the end. [any thread, no throw]
  const Element* operator->() const noexcept;
  /// Positions of one sequence. [any thread, no throw]
  bool operator!=(const Iterator& other) const noexcept;

 protected:
  explicit Iterator(const Element* position) noexcept;

  const Element* position_;
};

template <typename Element>
class ForwardIterator : public Iterator<Element> {
 public:
  ForwardIterator(const ForwardIterator& other) noexcept;
  ~ForwardIterator();

  /// Advances, never past the end; gives the position before. [any thread, no throw]
  ForwardIterator operator++(int) noexcept;

 protected:
  explicit ForwardIterator(const Element* position) noexcept;
};

template <typename Element>
class BidirectionalIterator : public ForwardIterator<Element> {
 public:
  BidirectionalIterator(const BidirectionalIterator& other) noexcept;
  ~BidirectionalIterator();

 private:
  friend class StructType;
  explicit BidirectionalIterator(const Element* position) noexcept;
};

}  // namespace Orvel
