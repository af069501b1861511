#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "plug_in_host/program.h"
#include "rows/rows.h"

namespace vtlcmd::bench {
namespace {

/// A graph that makes an array of random numbers each frame and applies an operation to it, one
/// result to the next.
std::string chainGraph(std::size_t elements, std::size_t links, const std::string& operation,
                       const std::string& firstInput, const std::string& otherInput) {
  std::string nodes = R"({"name": "frame", "op": "time_frame", "in": {"time": "time"}},
    {"name": "seed", "op": "convert", "type": "int", "in": {"value": "frame"}},
    {"name": "count", "op": "constant", "type": "int", "value": )" +
                      std::to_string(elements) + R"(},
    {"name": "link0", "op": "random", "in": {"count": "count", "seed": "seed"}})";
  for (std::size_t i = 1; i <= links; ++i) {
    nodes += ",\n{\"name\": \"link" + std::to_string(i) + R"(", "op": ")" + operation +
             R"(", "in": {")" + firstInput + "\": \"link" + std::to_string(i - 1) + '"' +
             otherInput + "}}";
  }
  return R"({"inputs": [{"name": "time", "type": "Simulation::Time"}], "nodes": [)" + nodes +
         R"(], "outputs": [{"name": "last", "from": "link)" + std::to_string(links) + "\"}]}";
}

/// The frames of a graph from one to another, in so many processes.
class Frames {
 public:
  Frames(const std::string& graph, std::size_t count)
      : graph_(std::make_shared<GraphFile>(graph)), count_(count) {}

  std::size_t count() const noexcept { return count_; }

  void runInOneProcess() const { run(1, count_, {}); }
  void runInTwoWorkers() const { run(1, count_, {"--workers", "2"}); }
  /// What the machine can do: two runs at once that know nothing of each other.
  void runInHalves() const {
    const std::size_t half = count_ / 2;
    auto first = std::async(std::launch::async, [&] { run(1, half, {}); });
    run(half + 1, count_, {});
    first.get();
  }

 private:
  void run(std::size_t first, std::size_t last, std::vector<std::string> more) const {
    std::vector<std::string> words{"run", graph_->path(), "-q", "-f",
                                   std::to_string(first) + "-" + std::to_string(last)};
    words.insert(words.end(), more.begin(), more.end());
    runProgram(std::move(words));
  }

  std::shared_ptr<GraphFile> graph_;
  std::size_t count_;
};

using Run = void (Frames::*)() const;

/// Of a frame by the clock: several processes are as fast as the last one.
double millisecondsOf(const Frames& frames, Run run) {
  const auto start = std::chrono::steady_clock::now();
  (frames.*run)();
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  return time.count() / static_cast<double>(frames.count());
}

Row row(std::string name, const Frames& frames, Run limit, double goal) {
  return {std::move(name), "ms", goal, 5, [frames, limit] {
            return Pair{millisecondsOf(frames, &Frames::runInTwoWorkers),
                        millisecondsOf(frames, limit)};
          }};
}

}  // namespace

/// The lengths of the frames are those of a processor of 2.8 GHz.
std::vector<Row> workerRows(const Scale& scale) {
  const std::string operand = R"(, "b": "link0")";
  // 80 KB an array, which stays in the second-level cache, and 16 MB, which doesn't.
  const Frames computing(chainGraph(20'000, 250, "sine", "x", ""), scale.longFrames);
  const Frames moving(chainGraph(2'000'000, 4, "add", "a", operand), scale.longFrames);
  const Frames shortOnes(chainGraph(1'000, 16, "sine", "x", ""), scale.shortFrames);
  constexpr double asGood = 1.1;
  return {
      row("frames of 20 ms in two workers, one process", computing, &Frames::runInOneProcess,
          1 / 1.8),
      row("frames of 20 ms in two workers, two runs of half", computing, &Frames::runInHalves,
          asGood),
      row("large arrays in two workers, two runs of half", moving, &Frames::runInHalves, asGood),
      row("frames of 0.1 ms in two workers, one process", shortOnes, &Frames::runInOneProcess,
          1.0)};
}

}  // namespace vtlcmd::bench
