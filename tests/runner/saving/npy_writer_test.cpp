#include "saving/npy_writer.h"

#include <gtest/gtest.h>
#include <sstream>

#include "readers/npy_header.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

template <typename T>
std::string saved(const ValueType& type, std::initializer_list<T> elements) {
  std::ostringstream stream;
  writeNpy(stream, type, arrayValue(generateArray<T>(elements.size(), [&](std::uint64_t i) {
             return elements.begin()[i];
           })));
  return stream.str();
}

std::string headerOf(std::string_view type, std::initializer_list<std::uint64_t> shape) {
  return npyHeader(type, std::vector<std::uint64_t>(shape));
}

TEST(NpyWriter, WritesTypesThatReportsDontKnow) {
  EXPECT_EQ(saved<std::int8_t>({"signed char", 1}, {1, -1}), headerOf("i1", {2}) + "\x01\xFF");
  EXPECT_EQ(saved<std::uint8_t>({"unsigned char", 1}, {7}), headerOf("u1", {1}) + "\x07");
  EXPECT_EQ(saved<std::int16_t>({"short", 1}, {258}).size(), headerOf("i2", {1}).size() + 2);
  EXPECT_EQ(saved<std::uint16_t>({"ushort", 1}, {}), headerOf("u2", {0}));
}

TEST(NpyWriter, KnowsWhatFits) {
  EXPECT_TRUE(fitsNpy({"bool", 0}));
  EXPECT_TRUE(fitsNpy({"Math::double4", 1}));
  EXPECT_TRUE(fitsNpy({"Math::short2x3", 30}));
  EXPECT_FALSE(fitsNpy({"Math::short2x3", 31}));
  EXPECT_TRUE(fitsNpy({"int", 32}));
  EXPECT_FALSE(fitsNpy({"int", 33}));
  for (const char* type : {"string", "Object", "Simulation::Time", "File::Project::SceneInfo"})
    EXPECT_FALSE(fitsNpy({type, 1})) << type;
}

}  // namespace
}  // namespace vtlcmd::runner
