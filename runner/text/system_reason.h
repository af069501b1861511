#pragma once

#include <cerrno>
#include <new>
#include <string>
#include <system_error>

namespace vtlcmd::runner {

/// What the system says of an error, in the same words on every platform.
inline std::string reasonOf(const std::system_error& error) {
  return error.code().default_error_condition().message();
}

/// Throws what the last failed call of a stream left in errno; an input or output error where that
/// is nothing.
[[noreturn]] inline void throwLastError() {
  throw std::system_error(errno != 0 ? errno : EIO, std::generic_category());
}

/// Whether there may be room at another time.
inline bool mayPass(const std::system_error& error) {
  return error.code() == std::errc::no_space_on_device ||
         error.code() == std::errc::not_enough_memory;
}

/// Memory that ran out is no fault of what was asked for.
inline void throwIfOutOfMemory(const std::system_error& error) {
  if (error.code() == std::errc::not_enough_memory) throw std::bad_alloc();
}

}  // namespace vtlcmd::runner
