#include "command_line/job_frames.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "command_line/option_values.h"
#include "command_line/usage_error.h"
#include "text/library_text.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {

void refuseRepeated(const std::string& option, const FrameList& job, const std::string& text) {
  std::vector<double> frames = job.numbers();
  std::sort(frames.begin(), frames.end());
  const auto found = std::adjacent_find(frames.begin(), frames.end());
  if (found != frames.end())
    throw UsageError(option + ": " + inQuotes(text) + " has frame " + shortestText(*found) +
                     " twice");
}

FrameList parsePartOfJob(const std::string& frames, const std::string& jobFrames) {
  const FrameList wanted = parseFrames(frames);
  const FrameList job = parseFrames(jobFrames);
  refuseRepeated("--job-frames", job, jobFrames);
  FrameList part;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const std::optional<std::size_t> place = job.placeOf(wanted[i]);
    if (!place)
      throw UsageError("--job-frames: " + inQuotes(jobFrames) + " lacks frame " +
                       shortestText(wanted[i]) + " of " + inQuotes(frames));
    part.appendFrom(job, *place);
  }
  return part;
}

FrameList parsePictureFrames(const std::string& frames, const std::string& jobFrames) {
  FrameList wanted = parseFrames(frames);
  const FrameList job = parseFrames(jobFrames);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (!job.placeOf(wanted[i]))
      throw UsageError("--picture: frame " + shortestText(wanted[i]) + " of " + inQuotes(frames) +
                       " isn't among the frames " + inQuotes(jobFrames));
  }
  return wanted;
}

}  // namespace vtlcmd::runner
