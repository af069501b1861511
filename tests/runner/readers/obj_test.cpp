#include "readers/obj.h"

#include <gtest/gtest.h>
#include <string>

#include "readers/read_error.h"

namespace vtlcmd::runner {
namespace {

namespace Math = Vantrel::Math;
using Indices = std::vector<std::int32_t>;

MeshData parseObj(const std::string& text) {
  MemorySource source({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
  return parseObj(source);
}

std::string objRefusal(const std::string& text) {
  try {
    parseObj(text);
  } catch (const ReadError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(Obj, CornersHaveTheirOwnTextureCoordinatesAndNormals) {
  const MeshData mesh = parseObj(
      "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nvt 0 0\nvt 1 1\nvn 0 0 1\nvn 0 0 -1\n"
      "f 1/1/1 2/1/1 3/2/1\nf 1/1/2 3/2/2 4/1/2\n");
  EXPECT_EQ(mesh.positions,
            (std::vector<Math::float3>{{{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0}}, {{0, 1, 0}}}));
  EXPECT_EQ(mesh.faceSizes, (Indices{3, 3}));
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2, 0, 2, 3}));
  ASSERT_EQ(mesh.normals.size(), 6U);
  EXPECT_EQ(mesh.normals[3], (Math::float3{{0, 0, -1}}));
  ASSERT_EQ(mesh.uvs.size(), 6U);
  EXPECT_EQ(mesh.uvs[2], (Math::float2{{1, 1}}));
  EXPECT_TRUE(mesh.colors.empty());
}

TEST(Obj, UnusedAndEqualPointsStay) {
  const MeshData mesh = parseObj("v 9 9 9\nv 0 0 0\nv 0 0 0\nv 1 0 0\nv 8 8 8\nf 4 3 2\n");
  EXPECT_EQ(mesh.positions, (std::vector<Math::float3>{
                                {{9, 9, 9}}, {{0, 0, 0}}, {{0, 0, 0}}, {{1, 0, 0}}, {{8, 8, 8}}}));
  EXPECT_EQ(mesh.cornerPoints, (Indices{3, 2, 1}));
}

TEST(Obj, NegativeIndicesCountBack) {
  const MeshData mesh = parseObj("v 0 0 0\nv 1 0 0\nv 1 1 0\nf -3 -2 -1\nv 5 5 5\nf -1 -2 -4\n");
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2, 3, 2, 0}));
}

TEST(Obj, CornersMayComeBeforeTheirPoints) {
  EXPECT_EQ(parseObj("f 1 2 3\nv 0 0 0\nv 1 0 0\nv 1 1 0\n").cornerPoints, (Indices{0, 1, 2}));
}

TEST(Obj, CommentsBlanksAndLongLines) {
  const MeshData mesh = parseObj(
      "# made by hand\r\n\r\n  v +1 2e0\t-3.5 # the first\r\nv 0 0 0\r\nv 1 1 1\r\n"
      "g a b\r\nusemtl none\r\nf 1 \\\r\n 2 \\\r\n3\r\nl 1 2");
  EXPECT_EQ(mesh.positions[0], (Math::float3{{1, 2, -3.5F}}));
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2}));
}

TEST(Obj, LinesLongerThanABlock) {
  std::string text = "v 0 0 0\nf";
  for (int i = 0; i < 100'000; ++i) text += " 1";
  EXPECT_EQ(parseObj(text).faceSizes, (Indices{100'000}));
}

TEST(Obj, ColorsOfPointsAreThoseOfTheirCorners) {
  const MeshData mesh = parseObj("v 0 0 0\nv 1 0 0 1 0 0\nv 1 1 0 0 1 0 0.5\nf 3 2 1\n");
  EXPECT_EQ(mesh.colors,
            (std::vector<Math::float4>{{{0, 1, 0, 0.5F}}, {{1, 0, 0, 1}}, {{1, 1, 1, 1}}}));
}

TEST(Obj, ColorsWithoutFacesAreByPoint) {
  EXPECT_EQ(parseObj("v 0 0 0 1 0 0\nv 1 0 0\n").colors,
            (std::vector<Math::float4>{{{1, 0, 0, 1}}, {{1, 1, 1, 1}}}));
}

TEST(Obj, WhatNotAllCornersHaveIsOfTheOthers) {
  const MeshData mesh = parseObj("v 0 0 0\nvn 0 0 1\nvt 1 1\nf 1/1/1 1/1 1\n");
  EXPECT_EQ(mesh.normals.size(), 1U);
  EXPECT_EQ(mesh.uvs.size(), 2U);
}

TEST(Obj, GeometryThatIsNotReadIsCounted) {
  EXPECT_EQ(parseObj("v 0 0 0\nv 1 0 0\nl 1 2\np 1\np 2\n").leftOut, "1 line, 2 point elements");
  EXPECT_EQ(parseObj("v 0 0 0\nvp 0 0\ncstype bezier\ndeg 1\ncurv 0 1 1 1\nparm u 0 1\nend\n"
                     "curv2 1 1\nsurf 0 1 0 1 1\ncall other.obj\n")
                .leftOut,
            "2 curves, 1 included file, 1 surface");
  EXPECT_EQ(parseObj("mtllib m.mtl\ng a\no b\ns 1\nusemtl c\nv 0 0 0\n").leftOut, "");
}

TEST(Obj, RefusalsNameTheLine) {
  EXPECT_EQ(objRefusal("\x01\x7f\xff"), "line 1: there is no such statement in OBJ files");
  EXPECT_EQ(objRefusal("v 1 2\n"), "line 1: there are fewer than 3 numbers");
  EXPECT_EQ(objRefusal("v 1 2 3 4 5 6 7 8\n"), "line 1: there are more than 7 numbers");
  EXPECT_EQ(objRefusal("\nv 1 2 x\n"), "line 2: 'x' is no number");
  EXPECT_EQ(objRefusal("v 1 2 +\n"), "line 1: '+' is no number");
  EXPECT_EQ(objRefusal("v 1 2 3\nf\n"), "line 2: the face has no corners");
  EXPECT_EQ(objRefusal("v 1 2 3\nf 1/2/3/4\n"), "line 2: '1/2/3/4' is no corner");
  EXPECT_EQ(objRefusal("v 1 2 3\nf 0\n"), "line 2: there is no vertex 0");
  EXPECT_EQ(objRefusal("v 1 2 3\nf -2\n"), "line 2: there is no vertex -2");
  EXPECT_EQ(objRefusal("v 1 2 3\nf 1\nf 2\nf 1\n"), "line 3: there is no vertex 2");
  EXPECT_EQ(objRefusal("v 1 2 3\nf 1/1\n"), "line 2: there is no texture coordinate 1");
  EXPECT_EQ(objRefusal("v 1 2 3\nf 1//7\n"), "line 2: there is no normal 7");
  EXPECT_EQ(objRefusal("v 1 2 3\nf 99999999999\n"), "line 2: '99999999999' is no number");
}

TEST(Obj, FilesWithoutPoints) {
  EXPECT_EQ(objRefusal(""), "there are no points in it");
  EXPECT_EQ(objRefusal("# nothing\ng a\n"), "there are no points in it");
}

}  // namespace
}  // namespace vtlcmd::runner
