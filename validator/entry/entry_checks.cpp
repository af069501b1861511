
#include <algorithm>
#include <string>
#include <vector>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/plug_in.h"
#include "host/session.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::validator {
namespace {

std::vector<std::string> namesOf(const Translation& translation,
                                 Orvel::Array<Orvel::String>& names) {
  translation.getSupportedTypeNames(names);
  std::vector<std::string> texts;
  for (const Orvel::String& name : names) texts.emplace_back(name.c_str());
  return texts;
}

/// The registered names in the order of the table, then the records'.
const std::vector<std::string> supportedNames = [] {
  std::vector<std::string> names;
  forEachRow(registeredTypes, [&](const auto& row) { names.emplace_back(row.name); });
  std::sort(names.begin(), names.end());
  forEachRow(inputOnlyTypes, [&](const auto& row) { names.emplace_back(row.name); });
  return names;
}();

void libraryLoads(Session& session) { session.plugIn(); }

void objectsAreDistinct(Session& session) {
  const Translator first(session.plugIn());
  const Translator second(session.plugIn());
  expect(&*first != &*second, "two calls give two objects");
}

/// The one word that the plug-in adds to the executor's object.
const void* ownWord(const Translation& translation) {
  return reinterpret_cast<const void* const*>(&translation)[sizeof(Translation) / sizeof(void*)];
}

void tableIsShared(Session& session) {
  const Translator first(session.plugIn());
  const Translator second(session.plugIn());
  expect(ownWord(*first) != nullptr, "the object has a handler table");
  expect(ownWord(*first) == ownWord(*second), "two objects have the same handler table");
}

void tableOutlivesObjects(Session& session) {
  const void* word = nullptr;
  {
    const Translator first(session.plugIn());
    word = ownWord(*first);
  }
  const Translator second(session.plugIn());
  expect(ownWord(*second) == word, "the handler table stays when all objects are gone");
}

void namesAreListed(Session& session) {
  const Translator translator(session.plugIn());
  Orvel::Array<Orvel::String> names;
  expectLines("names", namesOf(*translator, names), supportedNames);
}

void namesAreAppended(Session& session) {
  const Translator translator(session.plugIn());
  Orvel::Array<Orvel::String> names;
  names.append("first");
  namesOf(*translator, names);
  std::vector<std::string> wanted{"first"};
  for (int round = 0; round < 2; ++round)
    wanted.insert(wanted.end(), supportedNames.begin(), supportedNames.end());
  expectLines("names", namesOf(*translator, names), wanted);
}

void namesGrowTheArray(Session& session) {
  const Translator translator(session.plugIn());
  Orvel::Array<Orvel::String> names;
  namesOf(*translator, names);
  expect(names.capacity == 32, "the array grows by doubling, from 0 to 1 first");
}

}  // namespace

void addEntryChecks(CheckList& checks) {
  checks.push_back({"entry-loads", "The library loads and has its function.", libraryLoads});
  checks.push_back(
      {"entry-distinct-objects", "Each call of the entry gives a new object.", objectsAreDistinct});
  checks.push_back({"entry-shared-table", "All objects share one handler table.", tableIsShared});
  checks.push_back(
      {"entry-table-stays", "The handler table outlives the objects.", tableOutlivesObjects});
  checks.push_back(
      {"entry-names", "Seventeen type names are listed, the two records' last.", namesAreListed});
  checks.push_back({"entry-names-append", "Names go behind what the array holds, every time.",
                    namesAreAppended});
  checks.push_back(
      {"entry-names-growth", "The array of names grows by doubling.", namesGrowTheArray});
}

}  // namespace vtlcmd::validator
