#include "farm/chunks.h"

#include <algorithm>

#include "execution/frame_list_writer.h"

namespace vtlcmd::runner {

std::size_t leastChunkSize(std::size_t frames, std::size_t mostChunks) {
  return frames / mostChunks + (frames % mostChunks == 0 ? 0 : 1);
}

std::size_t chunkSizeFor(double seconds, double secondsOfFrame, std::size_t frames) {
  if (secondsOfFrame * static_cast<double>(frames) <= seconds) return frames;
  return std::max<std::size_t>(1, static_cast<std::size_t>(seconds / secondsOfFrame));
}

std::vector<std::string> chunksOf(std::span<const double> frames, std::size_t size) {
  std::vector<std::string> chunks;
  while (!frames.empty()) {
    const std::span<const double> chunk = frames.first(std::min(size, frames.size()));
    chunks.push_back(plainFramesText(chunk));
    frames = frames.subspan(chunk.size());
  }
  return chunks;
}

}  // namespace vtlcmd::runner
