#include "command_line/port_kinds.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

PortSource sourceOf(const char* type) { return portKindOf(parseValueType(type)).source; }

TEST(PortKinds, ByType) {
  for (const char* type : {"bool", "int", "ulong", "float", "Math::double4", "string"})
    EXPECT_EQ(sourceOf(type), PortSource::text) << type;
  for (const char* type : {"Simulation::Time", "File::Project::SceneInfo"})
    EXPECT_EQ(sourceOf(type), PortSource::options) << type;
  EXPECT_EQ(sourceOf("Object"), PortSource::defaultValue);
  for (const char* type : {"short", "Math::float2x2", "array<int>", "array<Simulation::Time>"})
    EXPECT_EQ(sourceOf(type), PortSource::nothing) << type;
}

}  // namespace
}  // namespace vtlcmd::runner
