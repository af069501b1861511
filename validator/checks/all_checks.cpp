#include "checks/check.h"
#include "checks/subjects.h"

namespace vtlcmd::validator {

CheckList allChecks() {
  CheckList checks;
  for (const auto add :
       {addEntryChecks,        addSlotChecks,       addBinaryChecks,        addBannerChecks,
        addNullRecordChecks,   addUseCountChecks,   addForeignModuleChecks, addInputTextChecks,
        addInputDefaultChecks, addNumberTextChecks, addVectorTextChecks,    addRunRecordChecks,
        addRefusedInputChecks, addOutputChecks,     addValueTextChecks,     addRefusedOutputChecks,
        addArrayChecks,        addListingChecks,    addStatisticsChecks,    addObjectChecks,
        addLoggerChecks,       addLifetimeChecks,   addThreadChecks,        addRandomTextChecks,
        addRandomArrayChecks})
    add(checks);
  return checks;
}

}  // namespace vtlcmd::validator
