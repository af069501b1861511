#include "vtlcmd/translation/vtlcmd_type_translation.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/allocation_count.h"
#include "support/type_samples.h"
#include "vtlcmd/translation/entry.h"

namespace vtlcmd {
namespace {

using VantrelGraph::Executor::TypeTranslation;

std::vector<std::string> textsOf(const Orvel::Array<Orvel::String>& array) {
  std::vector<std::string> texts;
  for (const Orvel::String& text : array) texts.emplace_back(text.c_str());
  return texts;
}

/// The registered types as their table sorts them, then the records.
std::vector<std::string> supportedNames() {
  std::vector<std::string> names = testing::registeredNames();
  forEachRow(testing::inputOnlyRows, [&](const auto& row) { names.emplace_back(row.name); });
  return names;
}

TEST(VtlCmdTypeTranslation, ListsTheRegisteredTypesThenTheRecords) {
  const VtlCmdTypeTranslation translation;
  Orvel::Array<Orvel::String> names;
  translation.getSupportedTypeNames(names);
  EXPECT_EQ(textsOf(names), supportedNames());
  EXPECT_EQ(names.capacity, 32U) << "seventeen names, by doubling";
}

TEST(VtlCmdTypeTranslation, AppendsBehindWhatTheArrayHeld) {
  const VtlCmdTypeTranslation translation;
  Orvel::Array<Orvel::String> names;
  names.append("before");
  translation.getSupportedTypeNames(names);
  translation.getSupportedTypeNames(names);
  const std::vector<std::string> supported = supportedNames();
  std::vector<std::string> expected{"before"};
  expected.insert(expected.end(), supported.begin(), supported.end());
  expected.insert(expected.end(), supported.begin(), supported.end());
  EXPECT_EQ(textsOf(names), expected);
  EXPECT_EQ(names.capacity, 64U);
}

#ifndef _WIN32
// There each library has allocation functions of its own, and only the program's are counted.
TEST(VtlCmdTypeTranslation, NothingStaysInUseBehindItsNames) {
  const VtlCmdTypeTranslation translation;
  EXPECT_EQ(testing::blocksLeftBy([&] {
              Orvel::Array<Orvel::String> names;
              translation.getSupportedTypeNames(names);
              translation.getSupportedTypeNames(names);
            }),
            0);
}
#endif

/// The one member that the class adds stands behind what its bases hold.
const HandlerTable* handlersOf(const TypeTranslation* object) {
  const auto* words = reinterpret_cast<const HandlerTable* const*>(object);
  return words[sizeof(VantrelGraph::Executor::TypeTranslationPreview) / sizeof(void*)];
}

TEST(CreateVantrelTypeTranslation, GivesObjectsThatShareTheTable) {
  TypeTranslation* first = createVantrelTypeTranslation();
  TypeTranslation* second = createVantrelTypeTranslation();
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_EQ(handlersOf(first), &sharedHandlerTable());
  EXPECT_EQ(handlersOf(second), &sharedHandlerTable());
  first->destroy();
  Orvel::Array<Orvel::String> names;
  second->getSupportedTypeNames(names);
  EXPECT_EQ(textsOf(names), supportedNames()) << "the table stays when an object goes";
  second->destroy();
}

/// The function table of an object whose deleting entry only counts its calls.
class CountingTable {
 public:
  explicit CountingTable(TypeTranslation* object) : object_(object), own_(tableOf(object)) {
    std::copy_n(own_ - wordsInFront, entries_.size(), entries_.begin());
    entries_[wordsInFront + deletingEntry] = reinterpret_cast<const void*>(&count);
    deleted = nullptr;
    tableOf(object) = entries_.data() + wordsInFront;
  }
  CountingTable(const CountingTable&) = delete;
  CountingTable& operator=(const CountingTable&) = delete;
  ~CountingTable() { tableOf(object_) = own_; }

  static inline const void* deleted = nullptr;

 private:
  /// Offset and type information stand in front of the entries, of which a virtual destructor has
  /// two; the second one deletes.
  static constexpr std::size_t wordsInFront = 2;
  static constexpr std::size_t deletingEntry = 1;
  static constexpr std::size_t entryCount = 13;

  static void count(const void* object) { deleted = object; }
  static const void* const*& tableOf(TypeTranslation* object) {
    return *reinterpret_cast<const void* const**>(object);
  }

  TypeTranslation* object_;
  const void* const* own_;
  std::array<const void*, wordsInFront + entryCount> entries_;
};

TEST(VtlCmdTypeTranslation, DestroyDeletesThroughTheTable) {
  TypeTranslation* object = createVantrelTypeTranslation();
  ASSERT_NE(object, nullptr);
  {
    const CountingTable table(object);
    object->destroy();
    ASSERT_EQ(CountingTable::deleted, object);
  }
  object->destroy();
}

}  // namespace
}  // namespace vtlcmd
