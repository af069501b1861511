#pragma once

namespace vtlcmd::spoiled {

/// The defect of this library; it stands in a source that the build writes.
extern const char* const defectName;

}  // namespace vtlcmd::spoiled
