#include "execution/caught_failure.h"

#include <exception>
#include <new>
#include <stdexcept>

namespace vtlcmd::runner {
namespace {

constexpr const char* noMemory = "there isn't enough memory for the result";

}  // namespace

CaughtFailure caughtFailure() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return {noMemory, Failure::transient};
  } catch (const std::length_error&) {
    return {noMemory, Failure::permanent};
  } catch (const std::exception& error) {
    return {error.what(), Failure::permanent};
  }
}

}  // namespace vtlcmd::runner
