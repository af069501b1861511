#pragma once

#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "support/built_text.h"
#include "support/scoped_locale.h"

namespace vtlcmd::testing {

/// What `write` appends is the same in every room, so that each of its pieces once finds too
/// little; and a room that is enough stays as it is.
inline void expectAnyRoomWillDo(const std::function<void(TextBuilder&)>& write) {
  // Numbers are written where the longest one would fit.
  const std::size_t enough = builtText(write).size() + 20;
  TextBuilder roomy(enough);
  write(roomy);
  EXPECT_LT(roomy.text().capacity(), 2 * enough);

  // Under a locale a number is a piece like any other and takes no more than its own room.
  const GroupingLocale locale;
  const std::string expected = builtText(write);
  for (std::size_t room = 0; room <= expected.size(); ++room) {
    TextBuilder text(room);
    write(text);
    ASSERT_EQ(text.text(), expected) << "room " << room;
  }
}

}  // namespace vtlcmd::testing
