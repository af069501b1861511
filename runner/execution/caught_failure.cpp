#include "execution/caught_failure.h"

#include <exception>
#include <new>
#include <stdexcept>
#include <system_error>

#include "readers/read_error.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {

CaughtFailure caughtFailure(const std::string& frame) {
  const std::string noMemory = "there isn't enough memory for the result of frame " + frame;
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return {noMemory, Failure::transient};
  } catch (const std::length_error&) {
    return {noMemory, Failure::permanent};
  } catch (const ReadError& error) {
    return {error.what(), error.isTransient() ? Failure::transient : Failure::permanent};
  } catch (const std::system_error& error) {
    return {error.what(), mayPass(error) ? Failure::transient : Failure::permanent};
  } catch (const std::exception& error) {
    return {error.what(), Failure::permanent};
  }
}

}  // namespace vtlcmd::runner
