#include <algorithm>
#include <array>
#include <barrier>
#include <cstddef>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "border/host.h"
#include "support/type_samples.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

/// What may be done from several threads at once. Built with the thread sanitizer, which reports
/// what isn't ordered; without it, what comes out is looked at all the same.

namespace vtlcmd::testing {
namespace {

using VantrelGraph::Executor::TypeTranslation;
using VantrelGraph::Executor::TypeTranslationPreview;

constexpr std::size_t threadCount = 4;

/// Runs `work(number)` on all threads from one moment on. Gives how many of them said that all was
/// well.
template <typename Work>
std::size_t onAllThreads(const Work& work) {
  std::barrier start(threadCount);
  std::array<bool, threadCount> wells{};
  {
    std::vector<std::jthread> threads;
    for (std::size_t number = 0; number < threadCount; ++number) {
      threads.emplace_back([&, number] {
        start.arrive_and_wait();
        wells[number] = work(number);
      });
    }
  }
  return static_cast<std::size_t>(std::count(wells.begin(), wells.end(), true));
}

std::string lastText(const Host& host) { return host.logger.messages.back().text; }

/// Sets a port of T from its text and reports its value, in both forms and as an array.
template <typename T>
bool takesAndReports(const TypeTranslationPreview& object) {
  Host host;
  if (rowOf<T>().samples[0].text != nullptr)
    host.inputValues.insert(host.name, {{}, rowOf<T>().samples[0].text});
  const std::string line =
      "Output port 'a port of a long name': (" + std::string(valueType<T>().name) + ") ";
  return object.setInputValue(Orvel::typeOf<T>(), host.value, &host.input) &&
         object.getOutputAny(host.value, &host.output) &&
         lastText(host) == line + rowOf<T>().samples[0].report &&
         object.getOutputValue(Orvel::fromAny(Orvel::typeOf<T>(), host.value), &host.output) &&
         lastText(host) == line + rowOf<T>().samples[0].report &&
         object.getOutputAny(makeAny(nestedArray<T, 2>(sampleValue<T>(1))), &host.output);
}

bool takesAndReportsAll(const TypeTranslationPreview& object) {
  bool well = true;
  forEachRow(registeredTypes, [&]<typename T>(const RegisteredType<T>&) {
    well = takesAndReports<T>(object) && well;
  });
  return well;
}

TEST(Threads, MakeTheFirstObjectsAtOnce) {
  for (int round = 0; round < 5; ++round) {
    const LoadedPlugIn library;
    EXPECT_EQ(onAllThreads([&](std::size_t) {
                TypeTranslation* object = library.create();
                if (object == nullptr) return false;
                Orvel::Array<Orvel::String> names;
                object->getSupportedTypeNames(names);
                object->destroy();
                return names.size == supportedCount;
              }),
              threadCount);
  }
}

TEST(Threads, EachHasAnObjectAndALogger) {
  const LoadedPlugIn library;
  EXPECT_EQ(onAllThreads([&](std::size_t) {
              auto* object = static_cast<TypeTranslationPreview*>(library.create());
              const bool well = takesAndReportsAll(*object);
              object->destroy();
              return well;
            }),
            threadCount);
}

TEST(Threads, ShareAnObject) {
  const LoadedPlugIn library;
  auto* object = static_cast<TypeTranslationPreview*>(library.create());
  EXPECT_EQ(onAllThreads([&](std::size_t) { return takesAndReportsAll(*object); }), threadCount);
  object->destroy();
}

/// Each takes a copy, the last of them ends the value.
template <typename T>
void shareAValue(const TypeTranslationPreview& object) {
  std::array<Any, threadCount> copies;
  {
    const Any value = makeAny(nestedArray<T, 1>(sampleValue<T>(0)));
    copies.fill(value);
  }
  EXPECT_EQ(onAllThreads([&](std::size_t number) {
              Host host;
              const Any own = copies[number];
              copies[number] = Any{};
              const bool well = object.getOutputAny(own, &host.output);
              host.value = own;
              return well;
            }),
            threadCount)
      << valueType<T>().name;
}

TEST(Threads, ShareValues) {
  const LoadedPlugIn library;
  auto* object = static_cast<TypeTranslationPreview*>(library.create());
  forEachRow(registeredTypes,
             [&]<typename T>(const RegisteredType<T>&) { shareAValue<T>(*object); });
  object->destroy();
}

TEST(Threads, ShareMapsDefaultsAndTypes) {
  const LoadedPlugIn library;
  const TypeTranslation* object = library.create();
  Host shared;
  shared.inputValues.insert("port", {{}, "12"});
  const Orvel::Type type = Orvel::typeOf<std::int32_t>();
  const Any defaultValue = makeAny(sampleValue<std::int32_t>(0));
  EXPECT_EQ(onAllThreads([&](std::size_t number) {
              Host own;
              own.name = number % 2 == 0 ? "port" : "another";
              own.context.inputValues = &shared.inputValues;
              own.input.defaultValue = defaultValue;
              return object->setInputValue(type, own.value, &own.input) &&
                     *anyCast<std::int32_t>(&own.value) == (number % 2 == 0 ? 12 : -12);
            }),
            threadCount);
  const_cast<TypeTranslation*>(object)->destroy();
}

}  // namespace
}  // namespace vtlcmd::testing
