#include "platform/memory_end.h"

#include <atomic>
#include <cstdlib>
#include <exception>
#include <new>

namespace vtlcmd::runner {
namespace {

void (*endOfProgram)() = nullptr;
std::terminate_handler ordinaryEnd = nullptr;
std::atomic<bool> anAllocationFailed = false;

[[noreturn]] void failAllocation() {
  anAllocationFailed = true;
  throw std::bad_alloc();
}

bool isOutOfMemory() {
  const std::exception_ptr reason = std::current_exception();
  // Code that may not throw may end the program before anyone has caught the exception.
  if (reason == nullptr) return anAllocationFailed && std::uncaught_exceptions() > 0;
  try {
    std::rethrow_exception(reason);
  } catch (const std::bad_alloc&) {
    return true;
  } catch (...) {
    return false;
  }
}

[[noreturn]] void terminate() {
  if (isOutOfMemory()) endOfProgram();
  ordinaryEnd();
  std::abort();
}

}  // namespace

void endWithoutMemoryBy(void (*end)()) {
  endOfProgram = end;
  if (ordinaryEnd != nullptr) return;
  ordinaryEnd = std::set_terminate(terminate);
  std::set_new_handler(failAllocation);
}

}  // namespace vtlcmd::runner
