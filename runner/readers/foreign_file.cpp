#include "readers/foreign_file.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <new>
#include <stdexcept>
#include <system_error>

#include "platform/child_process.h"
#include "platform/interrupt.h"
#include "platform/memory_end.h"
#include "platform/memory_limit.h"
#include "readers/data_message.h"
#include "readers/data_reply.h"
#include "readers/data_writer.h"
#include "readers/read_error.h"
#include "readers/read_limits.h"
#include "readers/reader_table.h"
#include "text/path_text.h"
#include "text/size_text.h"

namespace vtlcmd::runner {
namespace {

/// How long an interrupt waits to be noticed.
constexpr std::chrono::milliseconds pollTime{100};

ReadError tooMuchMemory(std::uint64_t limit) {
  return ReadError("reading it takes more than " + sizeText(limit) + " of memory (--read-memory)",
                   true);
}

std::string secondsText(std::chrono::seconds time) {
  return std::to_string(time.count()) + (time.count() == 1 ? " second" : " seconds");
}

/// What a process says that reads a file. It says no more than its memory could hold.
class ReaderOutput final : public ByteSource {
 public:
  ReaderOutput(const std::filesystem::path& file, const ReadLimits& limits)
      : limits_(limits),
        left_(limits.memory),
        deadline_(std::chrono::steady_clock::now() + limits.wallTime),
        process_(limits.program, {readerCommand, fileText(file), std::to_string(limits.memory),
                                  std::to_string(limits.processorTime.count()),
                                  limits.anywhere ? "anywhere" : "inside"}) {}

  /// Gives all bytes asked for.
  std::size_t read(std::span<unsigned char> bytes) override {
    if (bytes.size() > left_) throw tooMuchMemory(limits_.memory);
    left_ -= bytes.size();
    for (std::span<unsigned char> rest = bytes; !rest.empty();) {
      throwIfAbandoned();
      const auto now = std::chrono::steady_clock::now();
      if (now >= deadline_)
        throw ReadError(
            "reading it takes longer than " + secondsText(limits_.wallTime) + " (--read-time)",
            true);
      const std::optional<std::size_t> count =
          process_.read(rest, std::min(deadline_, now + pollTime));
      if (!count) continue;
      if (*count == 0) throwEnd();
      rest = rest.subspan(*count);
    }
    return bytes.size();
  }

  std::uint64_t remaining() const override { return left_; }

 private:
  /// The process has ended without its last message.
  [[noreturn]] void throwEnd() {
    const ProcessEnd end = process_.wait();
    switch (end.kind) {
      case ProcessEnd::Kind::tookTooMuchTime:
        throw ReadError("reading it takes more than " + secondsText(limits_.processorTime) +
                            " of processor time (--read-cpu)",
                        true);
      case ProcessEnd::Kind::killed:
        throw ReadError("its reader was killed", true);
      case ProcessEnd::Kind::crashed:
        throw ReadError("its reader crashed: " + end.signal);
      case ProcessEnd::Kind::exited:
        break;
    }
    if (end.exitCode == outOfMemoryExit) throw tooMuchMemory(limits_.memory);
    throw ReadError("its reader ended with exit code " + std::to_string(end.exitCode));
  }

  const ReadLimits& limits_;
  std::uint64_t left_;
  std::chrono::steady_clock::time_point deadline_;
  ChildProcess process_;
};

/// There may be nothing left to throw an exception with, and libraries catch what they don't know.
[[noreturn]] void endOutOfMemory() { std::_Exit(outOfMemoryExit); }

}  // namespace

std::vector<DataValue> readForeignFile(const std::filesystem::path& file, NpyForm form) {
  ReadLimits limits = readLimits();
  limits.memory = std::min(limits.memory, mostMemory());
  try {
    ReaderOutput output(file, limits);
    return parseReply(output, form);
  } catch (const std::system_error& error) {
    const bool isTransient = error.code() == std::errc::resource_unavailable_try_again ||
                             error.code() == std::errc::not_enough_memory;
    throw ReadError("its reader can't be started: " + error.code().message(), isTransient);
  }
}

void serveForeignFile(const std::vector<std::string>& words) {
  const std::filesystem::path file = filePath(words.at(0));
  prepareAsChild();
  limitProcessorTime(std::chrono::seconds(std::stoll(words.at(2))));
  limitMemory(std::stoull(words.at(1)));
  endWithoutMemoryBy(endOutOfMemory);
  std::set_new_handler(endOutOfMemory);
  DataWriter writer(std::cout);
  try {
    readerFor(file).send(file, words.at(3) == "anywhere", writer);
    writer.writeEnd();
  } catch (const std::bad_alloc&) {
    endOutOfMemory();
  } catch (const std::length_error&) {
    endOutOfMemory();
  } catch (const std::exception& error) {
    writer.writeError(error.what());
  }
}

}  // namespace vtlcmd::runner
