#pragma once

#include <cstring>
#include <gtest/gtest.h>
#include <string>

#include "vtlcmd/host/value_types.h"

/// Tests of each type of a list. They are written like the test library's typed tests, but compile
/// faster: of a test and type there is little code besides the test's own. And their names tell the
/// type, "Suite/float3.Test".

namespace vtlcmd::testing {

using MakeTest = ::testing::Test* (*)();

template <typename Test>
::testing::Test* makeTest() {
  return new Test;
}

inline void registerTypeTest(const std::string& suite, const char* typeName, const char* test,
                             const char* file, int line, MakeTest make) {
  // Colons would separate the names in a filter of tests.
  const char* colon = std::strrchr(typeName, ':');
  const std::string suiteOfType = suite + "/" + (colon == nullptr ? typeName : colon + 1);
  ::testing::RegisterTest(suiteOfType.c_str(), test, typeName, nullptr, file, line, make);
}

template <template <typename> typename TestOf, typename... T>
bool registerTypeTests(::testing::Types<T...>, const char* suite, const char* test,
                       const char* file, int line) {
  (registerTypeTest(suite, valueType<T>().name, test, file, line, &makeTest<TestOf<T>>), ...);
  return true;
}

}  // namespace vtlcmd::testing

/// The types, a ::testing::Types, of the tests of a fixture, which is a template.
#define TYPE_TEST_SUITE(Fixture, List) using TypesOf##Fixture = List

/// The function body behind it is a test of each of the fixture's types, as `TypeParam`.
#define TYPE_TEST(Fixture, Name)                                                                  \
  template <typename TypeParam>                                                                   \
  class Fixture##_##Name final : public Fixture<TypeParam> {                                      \
    void TestBody() override;                                                                     \
  };                                                                                              \
  [[maybe_unused]] const bool Fixture##_##Name##_isRegistered =                                   \
      ::vtlcmd::testing::registerTypeTests<Fixture##_##Name>(TypesOf##Fixture{}, #Fixture, #Name, \
                                                             __FILE__, __LINE__);                 \
  template <typename TypeParam>                                                                   \
  void Fixture##_##Name<TypeParam>::TestBody()
