#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "vtlcmd/build_identity/build_identity.h"

namespace vtlcmd::build_identity {
namespace {

TEST(HasErrorStream, GoesByTheDescriptorUnderTheStream) {
  ASSERT_TRUE(hasErrorStream());
  const int number = fileno(stderr);
  const int kept = fcntl(number, F_DUPFD_CLOEXEC, 3);
  ASSERT_NE(kept, -1);
  close(number);
  EXPECT_FALSE(hasErrorStream());
  ASSERT_EQ(dup2(kept, number), number);
  close(kept);
  EXPECT_TRUE(hasErrorStream());
}

#ifdef __GLIBC__
// Here the stream is a variable.
TEST(HasErrorStream, IsFalseForAStreamWithoutDescriptor) {
  char bytes[16];
  std::FILE* const inMemory = fmemopen(bytes, sizeof bytes, "w");
  ASSERT_NE(inMemory, nullptr);
  std::FILE* const kept = stderr;
  stderr = inMemory;
  const bool answer = hasErrorStream();
  stderr = kept;
  EXPECT_FALSE(answer);
  EXPECT_EQ(std::fclose(inMemory), 0);
}
#endif

}  // namespace
}  // namespace vtlcmd::build_identity
