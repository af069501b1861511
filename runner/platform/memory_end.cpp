#include "platform/memory_end.h"

#include <cstdlib>
#include <exception>
#include <new>

namespace vtlcmd::runner {
namespace {

void (*endOfProgram)() = nullptr;
std::terminate_handler ordinaryEnd = nullptr;

void terminate() {
  try {
    if (std::current_exception()) throw;
  } catch (const std::bad_alloc&) {
    endOfProgram();
  } catch (...) {
    // Told by the ordinary end.
  }
  ordinaryEnd();
  std::abort();
}

}  // namespace

void endWithoutMemoryBy(void (*end)()) {
  endOfProgram = end;
  if (ordinaryEnd == nullptr) ordinaryEnd = std::set_terminate(terminate);
}

}  // namespace vtlcmd::runner
