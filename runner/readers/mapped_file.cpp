#include "readers/mapped_file.h"

#include <cerrno>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace vtlcmd {

#if defined(_WIN32)

namespace {

[[noreturn]] void throwLast() {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

struct Handle {
  HANDLE handle;
  ~Handle() {
    if (handle != nullptr && handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
  }
};

}  // namespace

MappedFile::MappedFile(const std::filesystem::path& file) {
  const Handle opened{CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)};
  LARGE_INTEGER size{};
  if (opened.handle == INVALID_HANDLE_VALUE || !GetFileSizeEx(opened.handle, &size)) throwLast();
  if (size.QuadPart == 0) return;
  const Handle mapping{CreateFileMappingW(opened.handle, nullptr, PAGE_READONLY, 0, 0, nullptr)};
  if (mapping.handle == nullptr) throwLast();
  const void* view = MapViewOfFile(mapping.handle, FILE_MAP_READ, 0, 0, 0);
  if (view == nullptr) throwLast();
  data_ = static_cast<const unsigned char*>(view);
  size_ = static_cast<std::size_t>(size.QuadPart);
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) UnmapViewOfFile(data_);
}

// The system takes pages of a mapped file from a process by itself when others need them.
void MappedFile::release(std::size_t) const noexcept {}

#else

namespace {

[[noreturn]] void throwLast() { throw std::system_error(errno, std::generic_category()); }

struct Descriptor {
  int number;
  ~Descriptor() {
    if (number >= 0) ::close(number);
  }
};

}  // namespace

MappedFile::MappedFile(const std::filesystem::path& file) {
  const Descriptor opened{::open(file.c_str(), O_RDONLY | O_CLOEXEC)};
  struct stat facts {};
  if (opened.number < 0 || ::fstat(opened.number, &facts) != 0) throwLast();
  if (facts.st_size == 0) return;
  size_ = static_cast<std::size_t>(facts.st_size);
  void* view = ::mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, opened.number, 0);
  if (view == MAP_FAILED) throwLast();
  data_ = static_cast<const unsigned char*>(view);
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) ::munmap(const_cast<unsigned char*>(data_), size_);
}

void MappedFile::release(std::size_t count) const noexcept {
  const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
  ::madvise(const_cast<unsigned char*>(data_), count / page * page, MADV_DONTNEED);
}

#endif

}  // namespace vtlcmd
