#include "command_line/save_options.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "command_line/usage_error.h"
#include "text/library_text.h"
#include "text/near_misses.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

[[noreturn]] void refuse(const std::string& reason) { throw UsageError("--save: " + reason); }

FrameFileName fileNameFrom(const std::string& text) {
  try {
    return FrameFileName(text);
  } catch (const std::invalid_argument& error) {
    refuse(error.what());
  }
}

const FileFormat& formatFor(const std::string& file, const std::string& output,
                            const ValueType& type) {
  const FileFormat* format = fileFormatOf(filePath(file));
  if (format == nullptr)
    refuse(inQuotes(file) + " has no ending of what can be saved: " + fileFormatNames());
  if (!format->fits(type)) {
    refuse("output " + inQuotes(output) + " is of type " + nameOf(type) + ", and " +
           std::string(format->extension) + " files hold " + std::string(format->types));
  }
  return *format;
}

void requireOneFileAFrame(const std::string& text, const FrameFileName& file,
                          const FrameList& frames) {
  if (!file.hasFrame() && frames.wholeSize() > 1) {
    refuse(inQuotes(text) + " is one file for " + std::to_string(frames.wholeSize()) +
           " frames; {frame} in its name stands for the frame");
  }
  if (!file.wantsWholeFrames()) return;
  for (std::size_t i = 0; i < frames.size(); ++i) {
    if (std::floor(frames[i]) != frames[i])
      refuse("the frame " + FrameFileName("{frame}").at(frames[i]) + " has a fraction, which " +
             inQuotes(text) + " has no place for; {frame} has");
  }
}

}  // namespace

std::vector<SavedOutput> savedOutputsFrom(const std::vector<std::string>& assignments,
                                          const Graph& graph, const FrameList& frames) {
  std::vector<SavedOutput> saved;
  for (const std::string& assignment : assignments) {
    const std::size_t equals = assignment.find('=');
    if (equals == std::string::npos)
      refuse("expected OUTPUT=FILE, found " + inQuotes(assignment) + " without '='");
    const GraphOutput& output = requireOutput(graph, assignment.substr(0, equals));
    const std::string text = assignment.substr(equals + 1);
    const ValueType& type = graph.typeOfSlot(output.source);
    const FrameFileName file = fileNameFrom(text);
    const FileFormat& format = formatFor(text, output.name, type);
    requireOneFileAFrame(text, file, frames);
    saved.push_back({output.name, type, file, &format});
  }
  return saved;
}

const GraphOutput& requireOutput(const Graph& graph, const std::string& name) {
  std::vector<std::string> known;
  for (const GraphOutput& output : graph.outputs) {
    if (output.name == name) return output;
    known.push_back(output.name);
  }
  throw UsageError("the graph " + inQuotes(graph.name) + " has no output " + inQuotes(name) +
                   nearMissHint(name, known));
}

}  // namespace vtlcmd::runner
