#include <gtest/gtest.h>
#include <utility>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/object_builder.h"

namespace Vantrel {
namespace {

using Orvel::String;
using vtlcmd::makeAny;
using vtlcmd::ObjectPtr;

TEST(ObjectChain, EndsOnAnyStack) {
  Orvel::MutablePtr<Object> first = createObject();
  const ObjectPtr watched = createObject();
  setProperty(*first, String("watched"), makeAny(watched));
  ObjectPtr chain = std::move(first);
  for (int i = 0; i < 200000; ++i) {
    Orvel::MutablePtr<Object> next = createObject();
    setProperty(*next, String("next"), makeAny(std::move(chain)));
    chain = std::move(next);
  }
  EXPECT_EQ(Orvel::useCount(watched), 2U);
  chain = {};
  EXPECT_EQ(Orvel::useCount(watched), 1U);
}

}  // namespace
}  // namespace Vantrel
