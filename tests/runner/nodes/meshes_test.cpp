#include <array>
#include <gtest/gtest.h>

#include "runner/support/run_graph.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

/// Scatters points over a mesh of the given points, face sizes and points of the corners.
GraphResult scatter(const std::string& points, const std::string& sizes, const std::string& corners,
                    const std::string& count) {
  std::string nodes = R"({"name": "empty", "op": "object"},)";
  std::string object = "empty";
  const auto addData = [&](const std::string& name, const std::string& type,
                           const std::string& value) {
    nodes += R"({"name": ")" + name + R"(", "op": "constant", "type": "string", "value": ")" +
             name + R"("}, {"name": ")" + name + R"(_data", "op": "constant", "type": "array<)" +
             type + R"(>", "value": )" + value + R"(}, {"name": "with_)" + name +
             R"(", "op": "set_data", "in": {"object": ")" + object + R"(", "name": ")" + name +
             R"(", "array": ")" + name + R"(_data"}},)";
    object = "with_" + name;
  };
  addData("position", "Math::float3", points);
  addData("face_size", "int", sizes);
  addData("corner_point", "int", corners);
  return runGraph(R"({"nodes": [)" + nodes +
                  R"({"name": "count", "op": "constant", "type": "int", "value": )" + count +
                  R"(}, {"name": "seed", "op": "constant", "type": "uint", "value": 7},
                    {"name": "scattered", "op": "scatter",
                     "in": {"mesh": ")" +
                  object + R"(", "count": "count", "seed": "seed"}}],
                    "outputs": [{"name": "points", "from": "scattered"}]})");
}

constexpr const char* square = "[[0, 0, 5], [4, 0, 5], [4, 4, 5], [0, 4, 5]]";

std::vector<Vantrel::Math::float3> pointsIn(const GraphResult& result) {
  EXPECT_EQ(result.messages, Messages{});
  return result.array<Vantrel::Math::float3>("points");
}

TEST(Scatter, SpreadsPointsEvenlyOverAFace) {
  std::array<std::array<int, 4>, 4> counts{};
  for (const auto& point : pointsIn(scatter(square, "[4]", "[0, 1, 2, 3]", "16000"))) {
    const auto& [x, y, z] = point.components;
    EXPECT_EQ(z, 5);
    ASSERT_TRUE(x >= 0 && x <= 4 && y >= 0 && y <= 4);
    ++counts.at(std::min(3U, static_cast<unsigned>(x))).at(std::min(3U, static_cast<unsigned>(y)));
  }
  for (const auto& column : counts) {
    // A thousand each, within five standard deviations.
    for (const int count : column) EXPECT_NEAR(count, 1000, 155);
  }
}

TEST(Scatter, LargerFacesGetMore) {
  // The triangle on the left has a third of the area of the one on the right.
  const auto points = pointsIn(scatter("[[-1, 0, 0], [0, 0, 0], [0, 1, 0], [3, 0, 0]]", "[3, 3]",
                                       "[0, 1, 2, 1, 3, 2]", "4000"));
  const auto left = std::count_if(points.begin(), points.end(),
                                  [](const auto& point) { return point.components[0] < 0; });
  EXPECT_NEAR(static_cast<double>(left), 1000, 140);
}

TEST(Scatter, PassesOverFacesWithoutArea) {
  const auto points = pointsIn(scatter(square, "[0, 2, 3, 3]", "[0, 1, 0, 0, 1, 0, 1, 2]", "100"));
  EXPECT_EQ(points.size(), 100U);
  for (const auto& point : points) EXPECT_LE(point.components[1], point.components[0]);
}

TEST(Scatter, RefusesWhatIsNoMesh) {
  const auto refusal = [](const char* points, const char* sizes, const char* corners) {
    return scatter(points, sizes, corners, "1").messages;
  };
  const std::string where = "error: Node 'scattered' (scatter): ";
  EXPECT_EQ(refusal(square, "[5]", "[0, 1, 2, 3]"),
            Messages{where + "the mesh has fewer corners than its faces take."});
  EXPECT_EQ(refusal(square, "[-1]", "[0, 1, 2, 3]"),
            Messages{where + "the mesh has fewer corners than its faces take."});
  EXPECT_EQ(refusal(square, "[3]", "[0, 1, 4]"), Messages{where + "the mesh has no point 4."});
  EXPECT_EQ(refusal(square, "[3]", "[0, 1, -1]"), Messages{where + "the mesh has no point -1."});
  EXPECT_EQ(refusal(square, "[]", "[]"), Messages{where + "the mesh has no faces with an area."});
  EXPECT_EQ(refusal(square, "[3]", "[0, 0, 0]"),
            Messages{where + "the mesh has no faces with an area."});
}

}  // namespace
}  // namespace vtlcmd::runner
