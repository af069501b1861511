#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace vtlcmd::runner {

/// How many frames a chunk must have at least so that `frames` need at most `mostChunks`, above
/// zero.
std::size_t leastChunkSize(std::size_t frames, std::size_t mostChunks);

/// How many frames of that duration fill a time; at least one. Both in seconds, the time above
/// zero.
std::size_t chunkSizeFor(double seconds, double secondsOfFrame, std::size_t frames);

/// Texts for `--frames`: the frames in order, `size` of them in each text but the last one.
std::vector<std::string> chunksOf(std::span<const double> frames, std::size_t size);

}  // namespace vtlcmd::runner
