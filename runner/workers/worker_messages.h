#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frames/finished_frame.h"
#include "workers/fields.h"

namespace vtlcmd::runner {

/// What a worker process is told first: the run, as the program itself has read it.
struct WorkerTask {
  /// Those behind the program's name.
  std::vector<std::string> words;
  std::string graph;
  /// The texts of ports, as `PORT=TEXT`.
  std::vector<std::string> inputs;
  std::vector<std::string> jobs;
  /// How many processes share the machine's memory.
  unsigned workers = 1;
};

std::string messageOf(const WorkerTask& task);
WorkerTask taskIn(std::string_view fields);

/// What a worker is told then; the first field of a message. Its input ends with the program.
enum class WorkerOrder : std::uint64_t {
  /// To run the frames at some places, behind those that it has.
  run,
  /// To end after its frame.
  stop,
  /// To abandon its frame.
  abandon,
};

std::string runMessage(const std::vector<std::size_t>& places);
std::string messageOf(WorkerOrder order);

/// What a worker tells; the first field of a message.
enum class WorkerNews : std::uint64_t {
  /// The run is loaded.
  ready,
  /// It can't be loaded; the text says why.
  notLoaded,
  /// A frame has run.
  finished,
  /// Nothing comes any more.
  stopped,
};

std::string messageOf(WorkerNews news, std::string_view text = {});
std::string messageOf(const FinishedFrame& frame);

/// The fields behind the first one.
FinishedFrame frameIn(FieldReader& fields);

/// Ends what a worker has said on standard error of a frame, or while it loaded, before it tells of
/// that.
inline constexpr char endOfSaid = '\0';

}  // namespace vtlcmd::runner
