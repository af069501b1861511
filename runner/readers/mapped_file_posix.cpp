#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "readers/mapped_file.h"

namespace vtlcmd::runner {

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

}  // namespace vtlcmd::runner
