#include "workers/worker_process.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace vtlcmd::runner {
namespace {

/// A pipe holds no more.
constexpr std::size_t pipeSize = std::size_t{1} << 16U;
/// Of what a frame says more is cut at the front.
constexpr std::size_t mostSaid = std::size_t{1} << 20U;

constexpr std::size_t mostLastWords = 1000;
constexpr std::ptrdiff_t mostLastLines = 10;

std::string_view textOf(std::span<const unsigned char> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

WorkerProcess::WorkerProcess(const std::filesystem::path& program, const std::string& task)
    : process_(program, {workerCommand}, ChildStreams::all) {
  process_.send(task);
}

std::optional<std::size_t> WorkerProcess::receive() {
  std::array<unsigned char, pipeSize> block;
  const std::optional<std::size_t> count = process_.read(block, ChildProcess::now);
  if (count) news_.append(textOf({block.data(), *count}));
  takeErrors();
  if (count && *count == 0) return std::nullopt;
  return count.value_or(0);
}

/// What was said before the news that are here already is in the pipe at the latest.
void WorkerProcess::takeErrors() {
  std::array<unsigned char, pipeSize> block;
  for (std::size_t taken = 0; taken < pipeSize;) {
    const std::optional<std::size_t> count =
        process_.read(block, ChildProcess::now, ChildOutput::errors);
    if (!count || *count == 0) return;
    appendSaid(textOf({block.data(), *count}));
    taken += *count;
  }
}

void WorkerProcess::appendSaid(std::string_view text) {
  for (std::size_t end = 0; (end = text.find(endOfSaid)) != std::string_view::npos;) {
    saidSince_ += text.substr(0, end);
    said_.push_back(std::exchange(saidSince_, {}));
    text.remove_prefix(end + 1);
  }
  saidSince_ += text;
  if (saidSince_.size() > mostSaid) saidSince_.erase(0, saidSince_.size() - mostSaid / 2);
}

std::string WorkerProcess::takeSaid() {
  if (said_.empty()) return {};
  std::string said = std::move(said_.front());
  said_.pop_front();
  return said;
}

std::string WorkerProcess::lastWords() const {
  std::string_view words = saidSince_;
  while (words.ends_with('\n') || words.ends_with('\r')) words.remove_suffix(1);
  if (words.size() > mostLastWords) words.remove_prefix(words.size() - mostLastWords);
  while (std::count(words.begin(), words.end(), '\n') >= mostLastLines)
    words.remove_prefix(words.find('\n') + 1);
  return std::string(words);
}

}  // namespace vtlcmd::runner
