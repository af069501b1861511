#include "orvel_core/owned_block.h"

#include <utility>

namespace Orvel::Internal {
namespace {

thread_local OwnedBlock* waiting = nullptr;
thread_local bool isEnding = false;

}  // namespace

void OwnedBlock::endObject() noexcept {
  next_ = std::exchange(waiting, this);
  if (isEnding) return;
  isEnding = true;
  while (waiting != nullptr) {
    OwnedBlock* block = std::exchange(waiting, waiting->next_);
    block->deleteBlock();
  }
  isEnding = false;
}

void OwnedBlock::librarySlot() noexcept {}

}  // namespace Orvel::Internal
