#include "readers/archive.h"

#include <memory>
#include <new>
#include <vector>
#include <zip.h>

#include "readers/read_error.h"
#include "text/library_text.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

struct Close {
  void operator()(zip_t* archive) const { zip_discard(archive); }
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};

ReadError errorIn(const std::string& name, zip_error_t* error) {
  return ReadError(inQuotes(name) + " in it can't be read: " + zip_error_strerror(error));
}

std::vector<unsigned char> bytesOf(zip_t* archive, zip_uint64_t index, const std::string& name) {
  zip_stat_t facts;
  if (zip_stat_index(archive, index, 0, &facts) != 0 || (facts.valid & ZIP_STAT_SIZE) == 0)
    throw errorIn(name, zip_get_error(archive));
  const std::unique_ptr<zip_file_t, Close> file(zip_fopen_index(archive, index, 0));
  if (!file) throw errorIn(name, zip_get_error(archive));
  if (facts.size > PTRDIFF_MAX) throw std::bad_alloc();
  std::vector<unsigned char> bytes(facts.size);
  std::size_t filled = 0;
  // The library checks the sum of the bytes when it is asked for more than there are.
  for (unsigned char more = 0;;) {
    const bool isFull = filled == bytes.size();
    const zip_int64_t count =
        isFull ? zip_fread(file.get(), &more, 1)
               : zip_fread(file.get(), bytes.data() + filled, bytes.size() - filled);
    if (count < 0) throw errorIn(name, zip_file_get_error(file.get()));
    if (isFull && count == 0) return bytes;
    if (isFull || count == 0) throw ReadError(inQuotes(name) + " in it isn't as long as it says");
    filled += static_cast<std::size_t>(count);
  }
}

}  // namespace

std::string archiveReaderName() { return std::string("libzip ") + zip_libzip_version(); }

void readArchive(
    const std::filesystem::path& file,
    const std::function<void(const std::string&, std::span<const unsigned char>)>& give) {
  int code = 0;
  const std::unique_ptr<zip_t, Close> archive(
      zip_open(fileText(file).c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &code));
  if (!archive) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    const std::string reason = zip_error_strerror(&error);
    zip_error_fini(&error);
    throw ReadError("it is no archive: " + reason);
  }
  const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
  for (zip_int64_t i = 0; i < count; ++i) {
    const auto index = static_cast<zip_uint64_t>(i);
    const char* const name = zip_get_name(archive.get(), index, 0);
    const std::string text = name == nullptr ? "" : name;
    give(text, bytesOf(archive.get(), index, text));
  }
}

}  // namespace vtlcmd::runner
