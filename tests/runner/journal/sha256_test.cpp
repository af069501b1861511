#include "journal/sha256.h"

#include <gtest/gtest.h>
#include <string>

#include "journal/crc32.h"

namespace vtlcmd::runner {
namespace {

std::string sha256(std::string_view bytes) {
  Sha256 hash;
  hash.add(bytes);
  return hash.finish();
}

/// The examples that the standard was published with.
TEST(Sha256, PublishedVectors) {
  EXPECT_EQ(sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(sha256(std::string(1'000'000, 'a')),
            "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, PiecesMakeNoDifference) {
  std::string bytes;
  for (int i = 0; i < 300; ++i) bytes += static_cast<char>(i);
  const std::string whole = sha256(bytes);
  for (std::size_t size = 1; size < 200; ++size) {
    Sha256 hash;
    for (std::size_t place = 0; place < bytes.size(); place += size)
      hash.add(std::string_view(bytes).substr(place, size));
    EXPECT_EQ(hash.finish(), whole) << "pieces of " << size;
  }
}

/// The check value that catalogues of checksums give for this one.
TEST(Crc32, PublishedValues) {
  EXPECT_EQ(crc32("123456789"), 0xCBF43926U);
  EXPECT_EQ(crc32(""), 0U);
}

}  // namespace
}  // namespace vtlcmd::runner
