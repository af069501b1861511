#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::validator {
namespace {

/// An array reported in both forms, or given as a default, has the uses of before.
template <Registered T>
void usesAreGivenBack(Session& session) {
  const auto row = nestedArray<T, 1>(zeroValue<T>());
  const auto array = arrayOf<StoredArray<T, 1>>({row});
  PortHost host(session);
  {
    const Any value = makeAny(array);
    const std::uint64_t rowUses = Orvel::useCount(row);
    expect(host.reportAny(value), "the Any is reported");
    expect(Orvel::useCount(array) == 2 && Orvel::useCount(row) == rowUses,
           "the uses are those of before");
    const Orvel::Value nested = Orvel::makeValue(array);
    const std::uint64_t uses = Orvel::useCount(array);
    expect(host.reportValue(nested), "the value is reported");
    expect(Orvel::useCount(array) == uses && Orvel::useCount(row) == rowUses,
           "the uses are those of before");
  }
  expect(Orvel::useCount(array) == 1, "nobody else uses the array at the end");
}

template <Registered T>
void defaultIsShared(Session& session) {
  const auto array = nestedArray<T, 1>(zeroValue<T>());
  {
    PortHost host(session);
    expect(host.setInput(Orvel::typeOf<T>(), false, makeAny(array)), "the answer is true");
    expect(Orvel::useCount(array) == 2, "the result has one use");
    const Any copy = host.value;
    expect(Orvel::useCount(array) == 3, "a copy has another one");
  }
  expect(Orvel::useCount(array) == 1, "all uses are given back");
}

/// A pointer that nobody counts.
void nullControlIsLegal(Session& session) {
  Orvel::Array<float> array;
  array.append(1.5F);
  const Orvel::Ptr<Orvel::Array<float>> pointer(&array, nullptr);
  PortHost host(session);
  expect(host.reportAny(makeAny(pointer)), "the Any is reported");
  expect(host.setInput(Orvel::typeOf<float>(), false, makeAny(pointer)), "the default is copied");
}

/// A control block as another compiler may have made it: a table of two functions, a count.
struct RawBlock {
  const void* const* table;
  std::uint64_t useCount;
};

int endedBlocks = 0;
void libraryFunction(RawBlock*) {}
void endBlock(RawBlock*) { ++endedBlocks; }

void rawBlockIsEnded(Session& session) {
  endedBlocks = 0;
  const void* const table[]{reinterpret_cast<const void*>(&libraryFunction),
                            reinterpret_cast<const void*>(&endBlock)};
  RawBlock block{table, 1};
  Orvel::Array<float> array;
  array.append(1.5F);
  PortHost host(session);
  host.value = makeAny(Orvel::Ptr<Orvel::Array<float>>(
      &array, reinterpret_cast<Orvel::Internal::ControlBlock*>(&block)));
  expect(host.reportAny(host.value), "the Any is reported");
  expect(block.useCount == 1 && endedBlocks == 0, "the block lives on");
  host.giveText("2");
  expect(host.setInput(Orvel::typeOf<float>()), "the old value is replaced");
  expect(block.useCount == 0 && endedBlocks == 1, "the last release calls the second entry, once");
}

}  // namespace

void addUseCountChecks(CheckList& checks) {
  forEachRow(registeredTypes, [&](const auto& row) {
    using T = TypeOf<decltype(row)>;
    addChecksOfType(
        checks, row.name,
        {{"use-count-report", "Reporting arrays of {} leaves their use counts as they were.",
          usesAreGivenBack<T>},
         {"use-count-default", "An array as default of a {} port is shared, by one use a copy.",
          defaultIsShared<T>}});
  });
  checks.push_back(
      {"use-count-none", "A pointer without control block is never counted.", nullControlIsLegal});
  checks.push_back({"use-count-raw-block",
                    "Whoever releases a block last calls the second entry of its table.",
                    rawBlockIsEnded});
}

}  // namespace vtlcmd::validator
