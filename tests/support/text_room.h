#pragma once

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

#include "support/built_text.h"

namespace vtlcmd::testing {

/// What `write` appends is the same in every room, so that each of its pieces once finds too
/// little; and a room that is enough stays as it is.
template <typename Write>
void expectAnyRoomWillDo(Write&& write) {
  const std::string expected = builtText(write);
  for (std::size_t room = 0; room <= expected.size(); ++room) {
    TextBuilder text(room);
    write(text);
    ASSERT_EQ(text.text(), expected) << "room " << room;
  }
  // Numbers are written where the longest one would fit.
  const std::size_t enough = expected.size() + 20;
  TextBuilder text(enough);
  write(text);
  EXPECT_LT(text.text().capacity(), 2 * enough);
}

}  // namespace vtlcmd::testing
