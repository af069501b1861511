#pragma once

#include <clocale>
#include <gtest/gtest.h>

#include "support/test_host.h"

namespace vtlcmd::testing {

/// A host that set its C locale, as programs with a user interface do.
class CLocaleTest : public ::testing::Test {
 protected:
  /// The name must outlive this.
  explicit CLocaleTest(const char* locale) : locale_(locale) {}

  void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, locale_), nullptr); }
  void TearDown() override { std::setlocale(LC_ALL, "C"); }

  template <typename T>
  bool set(const char* text) {
    host_.giveText("p", text);
    return host_.setInput(Orvel::typeOf<T>(), value_, "p");
  }

  TestHost host_;
  Any value_;

 private:
  const char* locale_;
};

}  // namespace vtlcmd::testing
