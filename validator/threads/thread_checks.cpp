#include <array>
#include <atomic>
#include <exception>
#include <thread>
#include <vector>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

constexpr unsigned threadCount = 8;
constexpr int rounds = 200;

/// Runs `work` on all threads from one moment on; what one throws comes out.
template <typename Work>
void onAllThreads(const Work& work) {
  std::atomic<unsigned> waiting = threadCount;
  std::array<std::exception_ptr, threadCount> errors;
  std::vector<std::thread> threads;
  for (unsigned i = 0; i < threadCount; ++i) {
    threads.emplace_back([&, i] {
      try {
        --waiting;
        while (waiting != 0) std::this_thread::yield();
        work(i);
      } catch (...) {
        errors[i] = std::current_exception();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::exception_ptr& error : errors) {
    if (error) std::rethrow_exception(error);
  }
}

void loggersAreApart(Session& session) {
  session.plugIn();
  onAllThreads([&](unsigned number) {
    PortHost host(session);
    const std::string text = std::to_string(number);
    host.giveText(text.c_str());
    for (int round = 0; round < rounds; ++round) {
      expect(host.setInput(Orvel::typeOf<std::int32_t>()), "the input is set");
      expect(host.reportAny(host.value), "the output is reported");
      expectText("line", host.lastText(), "Output port 'port': (int) " + text);
    }
    expect(host.logger.messages.size() == std::size_t{2} * rounds,
           "the logger has this thread's messages");
  });
}

void oneObjectForAll(Session& session) {
  const Translator translator(session.plugIn());
  onAllThreads([&](unsigned number) {
    VtlCmdLogger logger(10);
    const PortValueMap none;
    RunContext context{&none, &none, 0, 0, 1, {}, {}, &logger};
    const Orvel::String name = "port";
    OutputValueData data{nullptr, &name, &context};
    for (int round = 0; round < rounds; ++round) {
      expect(translator->getOutputValue(Orvel::makeValue<std::uint32_t>(number), &data),
             "the value is reported");
    }
    expect(logger.messages.size() == rounds, "the logger has this thread's messages");
  });
}

void firstObjectsAtOnce(Session& session) {
  for (int round = 0; round < 20; ++round) {
    const PlugIn& plugIn = session.plugIn();
    onAllThreads([&](unsigned) {
      const Translator translator(plugIn);
      Orvel::Array<Orvel::String> names;
      translator->getSupportedTypeNames(names);
      expect(names.size == 17, "the handler table is whole");
    });
    session.unload();
  }
}

void sharedArrays(Session& session) {
  const auto row = arrayOf<float>({1, 2});
  const auto array = arrayOf<StoredArray<float, 1>>({row, row});
  const std::uint64_t rowUses = Orvel::useCount(row);
  session.plugIn();
  onAllThreads([&](unsigned) {
    PortHost host(session);
    for (int round = 0; round < rounds; ++round)
      expect(host.reportAny(makeAny(array)), "the array is reported");
  });
  expect(Orvel::useCount(array) == 1 && Orvel::useCount(row) == rowUses, "all uses are given back");
}

void objectsMayGoElsewhere(Session& session) {
  Translation* object = session.plugIn().create();
  expect(object != nullptr, "the entry gives an object");
  std::thread([=] { object->destroy(); }).join();
}

}  // namespace

void addThreadChecks(CheckList& checks) {
  checks.push_back(
      {"threads-loggers", "Threads with an object and a logger each don't meet.", loggersAreApart});
  checks.push_back(
      {"threads-one-object", "One object serves threads with a logger each.", oneObjectForAll});
  checks.push_back(
      {"threads-first-objects", "The first objects may be made at once.", firstObjectsAtOnce});
  checks.push_back(
      {"threads-shared-arrays", "Threads may report one array at once.", sharedArrays});
  checks.push_back(
      {"threads-destroy", "An object may end on another thread.", objectsMayGoElsewhere});
}

}  // namespace vtlcmd::validator
