#include <system_error>
#include <windows.h>

#include "readers/mapped_file.h"

namespace vtlcmd::runner {

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

}  // namespace vtlcmd::runner
