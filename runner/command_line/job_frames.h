#pragma once

#include <string>

#include "execution/frame_list.h"

namespace vtlcmd::runner {

/// The frames of a run that is a part of a job, with the job's numbers and places. Both as
/// `parseFrames` takes them. Throws UsageError, for frames that the job doesn't have and for a job
/// that has one twice too: nobody could tell which of the two has run.
FrameList parsePartOfJob(const std::string& frames, const std::string& jobFrames);

/// Throws UsageError, which names the option, for a job that has a frame twice.
void refuseRepeated(const std::string& option, const FrameList& job, const std::string& text);

/// The frames of a job that `--picture` names. Throws UsageError for one that the job lacks.
FrameList parsePictureFrames(const std::string& frames, const std::string& jobFrames);

}  // namespace vtlcmd::runner
