#include "checks/checks_of_type.h"

#include "checks/type_names.h"

namespace vtlcmd::validator {

void addChecksOfType(CheckList& checks, const std::string& typeName,
                     std::initializer_list<CheckOfType> ofType) {
  const std::string ending = '-' + nameOfType(typeName);
  for (const CheckOfType& check : ofType) {
    std::string promise(check.promise);
    promise.replace(promise.find("{}"), 2, typeName);
    checks.push_back({std::string(check.subject) + ending, std::move(promise), check.run});
  }
}

}  // namespace vtlcmd::validator
