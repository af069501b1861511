#pragma once

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "execution/executor.h"
#include "graph/graph.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {

/// What a graph without ports gives: by output, the value; and what was complained of.
struct GraphResult {
  std::map<std::string, Orvel::Value> outputs;
  std::vector<std::string> messages;

  template <typename T>
  const T& single(const std::string& output) const {
    return Orvel::valueAs<T>(outputs.at(output));
  }

  template <typename T>
  std::vector<T> array(const std::string& output) const {
    const Orvel::Array<T>& array = arrayIn<T>(outputs.at(output));
    return std::vector<T>(array.begin(), array.end());
  }
};

using Messages = std::vector<std::string>;

/// A constant as `runOperation` takes its inputs; `value` is JSON.
inline std::string constant(const std::string& type, const std::string& value) {
  return R"("type": ")" + type + R"(", "value": )" + value;
}

inline GraphResult runGraph(std::string_view text) {
  const Graph graph = parseGraph(text);
  VtlCmdLogger logger(10);
  const Executor::Result run = Executor(graph, logger, [](const auto&) {}).run({});
  GraphResult result;
  for (const LogMessage& message : logger.messages) {
    EXPECT_EQ(message.source, vantrelSource);
    result.messages.push_back(std::string(VtlCmdLogger::levelNames[message.level]) + ": " +
                              message.text);
  }
  if (!run.outputs) return result;
  for (std::size_t i = 0; i < graph.outputs.size(); ++i)
    result.outputs.emplace(graph.outputs[i].name, (*run.outputs)[i]);
  return result;
}

/// Runs one operation on constants: `a` and so on are JSON objects with type and value, `rest` are
/// further keys of the node. Its output is called "result".
inline GraphResult runOperation(const std::string& operation,
                                const std::vector<std::pair<std::string, std::string>>& inputs,
                                const std::string& rest = "") {
  std::string nodes;
  std::string in;
  for (const auto& [name, constant] : inputs) {
    nodes += R"({"name": ")" + name + R"(", "op": "constant", )" + constant + "},\n";
    in += (in.empty() ? "" : ", ") + ("\"" + name + R"(": ")" + name + "\"");
  }
  return runGraph(R"({"nodes": [)" + nodes + R"({"name": "node", "op": ")" + operation +
                  R"(", "in": {)" + in + "}" + rest +
                  R"(}], "outputs": [{"name": "result", "from": "node"}]})");
}

}  // namespace vtlcmd::runner
