#include "workers/worker_input.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include "platform/interrupt.h"

namespace vtlcmd::runner {
namespace {

/// The fields of the next message on the standard input.
std::string nextMessage() {
  const auto read = [](std::string& bytes, std::size_t size) {
    bytes.resize(size);
    // Nobody is left to be told why.
    if (std::fread(bytes.data(), 1, size, stdin) != size) std::_Exit(1);
  };
  std::string bytes;
  read(bytes, sizeof(std::uint64_t));
  const std::uint64_t size = FieldReader(bytes).number();
  read(bytes, static_cast<std::size_t>(size));
  return bytes;
}

}  // namespace

WorkerInput::WorkerInput() : task_(taskIn(nextMessage())) {
  // It waits for input until the process ends.
  std::thread([this] { listen(); }).detach();
}

std::optional<std::size_t> WorkerInput::nextPlace() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return stops_ || !places_.empty(); });
  if (stops_) return std::nullopt;
  const std::size_t place = places_.front();
  places_.pop_front();
  return place;
}

void WorkerInput::listen() {
  for (;;) obey(nextMessage());
}

void WorkerInput::obey(std::string_view order) {
  FieldReader fields(order);
  const auto kind = static_cast<WorkerOrder>(fields.number());
  if (kind == WorkerOrder::abandon) return abandonFrame();
  const std::lock_guard lock(mutex_);
  if (kind == WorkerOrder::stop) {
    stops_ = true;
  } else {
    for (std::uint64_t left = fields.number(); left > 0; --left)
      places_.push_back(static_cast<std::size_t>(fields.number()));
  }
  changed_.notify_one();
}

}  // namespace vtlcmd::runner
