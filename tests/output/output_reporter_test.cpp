#include "vtlcmd/output/output_reporter.h"

#include <exception>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <new>
#include <string>

#include "support/allocation_count.h"
#include "support/scoped_locale.h"
#include "support/test_host.h"
#include "support/type_samples.h"
#include "support/type_tests.h"

namespace vtlcmd {
namespace {

using testing::arrayOf;
using ::testing::ElementsAre;
using testing::nestedArray;
using testing::rowOf;
using testing::sampleValue;
using testing::TestHost;

/// The one line that a report of the port "result" leaves, and what the run report keeps of it.
struct Reported {
  std::string line;
  OutputReport record;
};

Reported reportedBy(TestHost& host, bool result) {
  EXPECT_TRUE(result);
  EXPECT_EQ(host.logger.messages.size(), 1U);
  EXPECT_EQ(host.logger.messages[0].source, 0);
  EXPECT_EQ(host.logger.messages[0].level, 4);
  return {host.logger.messages[0].text, host.logger.fallbackEntry.outputs.at("result")};
}

template <typename Stored>
std::string reportAny(const Stored& value, std::uint32_t limit = 10) {
  TestHost host(limit);
  return reportedBy(host, host.getAny(makeAny(value), "result")).line;
}

template <typename Stored>
std::string reportValueOf(const Stored& value, std::uint32_t limit = 10) {
  TestHost host(limit);
  return reportedBy(host, host.getValue(Orvel::makeValue(value), "result")).line;
}

template <typename Stored>
void expectBoth(const Stored& value, const std::string& text, std::uint32_t limit = 10) {
  EXPECT_EQ(reportAny(value, limit), text);
  EXPECT_EQ(reportValueOf(value, limit), text);
}

TEST(OutputReporter, WorkedLines) {
  expectBoth(std::int32_t{42}, "Output port 'result': (int) 42");
  expectBoth(true, "Output port 'result': (bool) true");
  expectBoth(Math::float3{{1, 2.5F, 3}}, "Output port 'result': (Math::float3) {1, 2.5, 3}");
  expectBoth(Orvel::String("some text"), "Output port 'result': (string) \"some text\"");
  expectBoth(arrayOf<float>({1.5F, 2.5F, 4}),
             "Output port 'result': (array<float>) (3 float)\n"
             "  {\n"
             "     min: 1.5\n"
             "     max: 4\n"
             "     avg: 2.66667\n"
             "  }");
  expectBoth(arrayOf<Orvel::String>({"a", "b", "c", "d", "e"}),
             "Output port 'result': (array<string>) \n"
             "(2 out of 5 string)[\n"
             "\"a\",\n"
             "\"b\" ]\n",
             2);
  expectBoth(arrayOf<std::int32_t>({}), "Output port 'result': (array<int>) (0 out of 0 int)");
  expectBoth(arrayOf<std::int32_t>({1}), "Output port 'result': (array<int> output suppressed)", 0);
  expectBoth(arrayOf<Math::double3>({{}}),
             "Output port 'result': (array<Math::double3>) "
             "{non supported array of Math::double3 }");
  expectBoth(arrayOf<bool>({true, false, true}),
             "Output port 'result': (array<bool>)  (3 bool)\n"
             "  {\n"
             "     min: 0\n"
             "     max: 1\n"
             "     avg: 0\n"
             "  }");
}

const auto twoRows = [] {
  return arrayOf<StoredArray<std::int32_t, 1>>(
      {arrayOf<std::int32_t>({1, 2}), arrayOf<std::int32_t>({3})});
};

TEST(OutputReporter, TwoDimensionalArray) {
  EXPECT_EQ(reportAny(twoRows()),
            "Output port 'result': (array<array<int>>) \n"
            "(2 out of 2 int)[\n"
            "(2 int)\n"
            "  {\n"
            "     min: 1\n"
            "     max: 2\n"
            "     avg: 1\n"
            "  },\n"
            "(1 int)\n"
            "  {\n"
            "     min: 3\n"
            "     max: 3\n"
            "     avg: 3\n"
            "  } ]\n");
  EXPECT_EQ(reportAny(twoRows(), 1),
            "Output port 'result': (array<array<int>>) \n"
            "(1 out of 2 int)[\n"
            "(2 int)\n"
            "  {\n"
            "     min: 1\n"
            "     max: 2\n"
            "     avg: 1\n"
            "  } ]\n");
}

TEST(OutputReporter, ValuePathNamesInnerArraysInItsHeads) {
  EXPECT_EQ(reportValueOf(twoRows(), 1),
            "Output port 'result': (array<array<int>>) \n"
            "(1 out of 2 array<int>)[\n"
            "(2 int)\n"
            "  {\n"
            "     min: 1\n"
            "     max: 2\n"
            "     avg: 1\n"
            "  } ]\n");
}

TEST(OutputReporter, ThreeDimensionalArray) {
  const auto plane = [](std::int32_t value) { return nestedArray<std::int32_t, 2>(value); };
  EXPECT_EQ(reportAny(arrayOf<StoredArray<std::int32_t, 2>>({plane(1), plane(2)})),
            "Output port 'result': (array<array<array<int>>>) \n"
            "(2 out of 2 int)[\n"
            "\n"
            "(1 out of 1 int)[\n"
            "(1 int)\n"
            "  {\n"
            "     min: 1\n"
            "     max: 1\n"
            "     avg: 1\n"
            "  } ]\n"
            ",\n"
            "\n"
            "(1 out of 1 int)[\n"
            "(1 int)\n"
            "  {\n"
            "     min: 2\n"
            "     max: 2\n"
            "     avg: 2\n"
            "  } ]\n"
            " ]\n");
}

TEST(OutputReporter, NumbersFollowTheGlobalLocale) {
  const testing::GroupingLocale locale;
  expectBoth(std::int32_t{-1234567}, "Output port 'result': (int) -1.234.567");
  expectBoth(1.5, "Output port 'result': (double) 1,5");
  expectBoth(Math::float2{{1.5F, 2}}, "Output port 'result': (Math::float2) {1,5, 2}");
  expectBoth(arrayOf(std::vector<Orvel::String>(1000, "a")),
             "Output port 'result': (array<string>) \n(1 out of 1.000 string)[\n\"a\" ]\n", 1);
}

TEST(OutputReporter, StatisticsCoverEveryElementWhateverTheLimit) {
  const std::string line = reportAny(arrayOf<float>(std::vector<float>(1000, 2)), 1);
  EXPECT_EQ(line,
            "Output port 'result': (array<float>) (1000 float)\n"
            "  {\n     min: 2\n     max: 2\n     avg: 2\n  }");
}

TEST(OutputReporter, ListOfObjectsHasTheirReports) {
  expectBoth(arrayOf<ObjectPtr>({Vantrel::createObject(), ObjectPtr{}}),
             "Output port 'result': (array<Object>) \n"
             "(2 out of 2 Object)[\n"
             "{\n"
             "},\n"
             "{\n"
             "  No object produced, verify your inputs.\n"
             "} ]\n");
}

TEST(OutputReporter, PortNameIsWrittenAsItStands) {
  TestHost host;
  EXPECT_TRUE(host.getAny(makeAny(true), "it's \"x\""));
  EXPECT_THAT(host.messages(), ElementsAre("progress Output port 'it's \"x\"': (bool) true"));
}

TEST(OutputReporter, SecondReportAddsALineAndReplacesTheRecord) {
  TestHost host;
  EXPECT_TRUE(host.getAny(makeAny(true), "result"));
  EXPECT_TRUE(host.getAny(makeAny(std::int32_t{3}), "result"));
  EXPECT_THAT(host.messages(), ElementsAre("progress Output port 'result': (bool) true",
                                           "progress Output port 'result': (int) 3"));
  EXPECT_EQ(host.logger.fallbackEntry.outputs.size(), 1U);
  EXPECT_EQ(host.logger.fallbackEntry.outputs.at("result").valueText, "3");
}

template <typename T>
class OutputReporterOf : public ::testing::Test {
 protected:
  /// Line and record of one report, whose line must be the record's pieces put together.
  void expectReport(TestHost& host, bool result, const std::string& typeName) {
    const Reported reported = reportedBy(host, result);
    EXPECT_EQ(reported.record.typeName, typeName);
    if (host.logger.printLimit == 0) {
      EXPECT_EQ(reported.line, "Output port 'result': (" + typeName + " output suppressed)");
      EXPECT_EQ(reported.record.valueText, "");
      EXPECT_FALSE(reported.record.valueShown);
    } else {
      EXPECT_NE(reported.record.valueText, "");
      EXPECT_EQ(reported.line,
                "Output port 'result': (" + typeName + ") " + reported.record.valueText);
      EXPECT_TRUE(reported.record.valueShown);
    }
  }

  template <typename Stored>
  void expectBothReports(const Stored& value, const std::string& typeName) {
    for (const std::uint32_t limit : {0U, 1U, 10U}) {
      TestHost anyHost(limit);
      expectReport(anyHost, anyHost.getAny(makeAny(value), "result"), typeName);
      TestHost valueHost(limit);
      expectReport(valueHost, valueHost.getValue(Orvel::makeValue(value), "result"), typeName);
    }
  }
};
TYPE_TEST_SUITE(OutputReporterOf, testing::RegisteredTestTypes);

TYPE_TEST(OutputReporterOf, FiveFormsPutValueAndTypeIntoLineAndRecord) {
  const TypeParam value = sampleValue<TypeParam>(0);
  const std::string name = valueType<TypeParam>().name;
  this->expectBothReports(value, name);
  this->expectBothReports(nestedArray<TypeParam, 1>(value), "array<" + name + ">");
  this->expectBothReports(nestedArray<TypeParam, 2>(value), "array<array<" + name + ">>");
  this->expectBothReports(nestedArray<TypeParam, 3>(value), "array<array<array<" + name + ">>>");
}

TYPE_TEST(OutputReporterOf, SingleValueHasItsText) {
  EXPECT_EQ(reportAny(sampleValue<TypeParam>(0)), "Output port 'result': (" +
                                                      std::string(valueType<TypeParam>().name) +
                                                      ") " + rowOf<TypeParam>().samples[0].report);
}

TYPE_TEST(OutputReporterOf, EmptyAnyReadsAsZero) {
  TestHost host;
  const Orvel::String name = "result";
  reportScalar<TypeParam>(&name, Any{}, &host.logger);
  EXPECT_EQ(reportedBy(host, true).record.valueText, rowOf<TypeParam>().zeroReport);
}

TYPE_TEST(OutputReporterOf, AnyOfAnotherTypeReadsAsZero) {
  TestHost host;
  const Orvel::String name = "result";
  const Any foreign = makeAny(nestedArray<TypeParam, 1>(sampleValue<TypeParam>(0)));
  reportScalar<TypeParam>(&name, foreign, &host.logger);
  EXPECT_EQ(reportedBy(host, true).record.valueText, rowOf<TypeParam>().zeroReport);
}

TYPE_TEST(OutputReporterOf, SuppressedArrayIsNotLookedAt) {
  // A null array would be read through if anything opened it.
  const Any nulls[] = {makeAny(StoredArray<TypeParam, 1>{}), makeAny(StoredArray<TypeParam, 2>{}),
                       makeAny(StoredArray<TypeParam, 3>{})};
  std::string typeName = valueType<TypeParam>().name;
  for (const Any& null : nulls) {
    typeName = "array<" + typeName + ">";
    TestHost host(0);
    this->expectReport(host, host.getAny(null, "result"), typeName);
  }
}

TEST(OutputReporter, ValuesTypeWordIsTheLibrarysOwn) {
  TestHost host(0);
  const Orvel::String name = "result";
  reportValue<std::int32_t>(&name, Orvel::makeValue(1.5F), 0, &host.logger);
  EXPECT_THAT(host.messages(),
              ElementsAre("progress Output port 'result': (float output suppressed)"));
}

TEST(OutputReporter, LibrarysExceptionsPassAndNothingIsRecorded) {
  TestHost host;
  const Orvel::String name = "result";
  EXPECT_THROW(reportValue<std::int32_t>(&name, Orvel::makeValue(1.5F), 0, &host.logger),
               std::exception);
  EXPECT_TRUE(host.logger.messages.empty());
  EXPECT_TRUE(host.logger.fallbackEntry.outputs.empty());
}

/// Fails the allocation after `left` that succeed.
void failOneAllocation(void* left) {
  if ((*static_cast<std::size_t*>(left))-- == 0) throw std::bad_alloc();
}

TYPE_TEST(OutputReporterOf, RecordComesBeforeTheMessageWhateverAllocationFails) {
  const Orvel::String name = "a port with a name that is too long to be kept in place";
  const Any any = makeAny(nestedArray<TypeParam, 1>(sampleValue<TypeParam>(0)));
  bool failed = true;
  std::size_t recordsWithoutMessage = 0;
  for (std::size_t successes = 0; failed; ++successes) {
    VtlCmdLogger logger(10);
    std::size_t left = successes;
    testing::watchAllocations(&failOneAllocation, &left);
    try {
      reportArray<TypeParam, 1>(&name, any, &logger);
      failed = false;
    } catch (const std::bad_alloc&) {
    }
    testing::watchAllocations(nullptr, nullptr);
    EXPECT_EQ(logger.messages.size(), failed ? 0U : 1U);
    if (failed && !logger.fallbackEntry.outputs.empty()) ++recordsWithoutMessage;
  }
  EXPECT_GT(recordsWithoutMessage, 0U);
}

#ifndef _WIN32
// There each library has allocation functions of its own, and only the program's are counted.
template <typename Stored>
std::ptrdiff_t blocksLeftByReports(const Stored& value) {
  return testing::blocksLeftBy([&] {
    TestHost host;
    EXPECT_TRUE(host.getAny(makeAny(value), "result"));
    EXPECT_TRUE(host.getValue(Orvel::makeValue(value), "result"));
  });
}

TYPE_TEST(OutputReporterOf, NothingStaysInUseBehindTheRun) {
  const auto value = sampleValue<TypeParam>(0);
  EXPECT_EQ(blocksLeftByReports(value), 0);
  EXPECT_EQ(blocksLeftByReports(nestedArray<TypeParam, 1>(value)), 0);
  EXPECT_EQ(blocksLeftByReports(nestedArray<TypeParam, 2>(value)), 0);
  EXPECT_EQ(blocksLeftByReports(nestedArray<TypeParam, 3>(value)), 0);
}
#endif

}  // namespace
}  // namespace vtlcmd
