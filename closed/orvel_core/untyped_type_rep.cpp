#include <limits>
#include <new>

#include "vtlcmd/host/imports/orvel_array.h"

namespace Orvel::Internal {

void* UntypedTypeRep::allocate(std::uint64_t count) const {
  if (count > std::numeric_limits<std::uint64_t>::max() / elementSize) {
    throw std::bad_array_new_length();
  }
  const std::uint64_t size = count * elementSize;
  return ::operator new (size, std::align_val_t{elementAlignment});
}

void UntypedTypeRep::deallocate(void* block, std::uint64_t) const noexcept {
  ::operator delete (block, std::align_val_t{elementAlignment});
}

}  // namespace Orvel::Internal
