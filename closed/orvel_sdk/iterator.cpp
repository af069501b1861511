#include "vtlcmd/host/imports/orvel_iterator.h"
#include "vtlcmd/host/imports/orvel_types.h"

namespace Orvel {

template <typename Element>
Iterator<Element>::Iterator(const Element* position) noexcept : position_(position) {}

template <typename Element>
Iterator<Element>::Iterator(const Iterator& other) noexcept = default;

template <typename Element>
Iterator<Element>::~Iterator() = default;

template <typename Element>
const Element* Iterator<Element>::operator->() const noexcept {
  return position_;
}

template <typename Element>
bool Iterator<Element>::operator!=(const Iterator& other) const noexcept {
  return position_ != other.position_;
}

template <typename Element>
ForwardIterator<Element>::ForwardIterator(const Element* position) noexcept
    : Iterator<Element>(position) {}

template <typename Element>
ForwardIterator<Element>::ForwardIterator(const ForwardIterator& other) noexcept = default;

template <typename Element>
ForwardIterator<Element>::~ForwardIterator() = default;

template <typename Element>
ForwardIterator<Element> ForwardIterator<Element>::operator++(int) noexcept {
  return ForwardIterator(this->position_++);
}

template <typename Element>
BidirectionalIterator<Element>::BidirectionalIterator(const Element* position) noexcept
    : ForwardIterator<Element>(position) {}

template <typename Element>
BidirectionalIterator<Element>::BidirectionalIterator(const BidirectionalIterator& other) noexcept =
    default;

template <typename Element>
BidirectionalIterator<Element>::~BidirectionalIterator() = default;

template class Iterator<StructType::Member>;
template class ForwardIterator<StructType::Member>;
template class BidirectionalIterator<StructType::Member>;

}  // namespace Orvel
