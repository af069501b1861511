#include "graph/frame_dependence.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(FrameDependence, ComesFromTheTimeThroughWhateverNodes) {
  const Graph graph = parseGraph(R"({
    "inputs": [{"name": "time", "type": "Simulation::Time"},
               {"name": "scene", "type": "File::Project::SceneInfo"},
               {"name": "count", "type": "double"}],
    "jobs": [{"name": "job_time", "type": "Simulation::Time"}],
    "nodes": [
      {"name": "sum", "op": "add", "in": {"a": "count", "b": "frame"}},
      {"name": "frame", "op": "time_frame", "in": {"time": "time"}},
      {"name": "job_frame", "op": "time_frame", "in": {"time": "job_time"}},
      {"name": "file", "op": "scene_file_name", "in": {"scene": "scene"}},
      {"name": "twice", "op": "add", "in": {"a": "count", "b": "count"}},
      {"name": "list", "op": "array", "in": {"elements": ["twice", "count", "sum"]}}]})");
  EXPECT_EQ(frameDependence(graph), (std::vector<bool>{true, true, true, false, false, true}));
}

}  // namespace
}  // namespace vtlcmd::runner
