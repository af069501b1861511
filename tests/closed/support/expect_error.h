#pragma once

#include <gtest/gtest.h>

namespace Orvel::testing {

/// Expects that the call throws an Error with exactly this text.
template <typename Error, typename Call>
void expectError(Call call, const char* text) {
  try {
    call();
    ADD_FAILURE() << "nothing was thrown, not: " << text;
  } catch (const Error& error) {
    EXPECT_STREQ(error.what(), text);
  }
}

}  // namespace Orvel::testing
