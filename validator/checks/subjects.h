#pragma once

#include "checks/check.h"

/// Each appends the checks of one subject.

namespace vtlcmd::validator {

void addEntryChecks(CheckList& checks);
void addSlotChecks(CheckList& checks);
void addBinaryChecks(CheckList& checks);
void addBannerChecks(CheckList& checks);
void addNullRecordChecks(CheckList& checks);
void addUseCountChecks(CheckList& checks);
void addForeignModuleChecks(CheckList& checks);
void addInputTextChecks(CheckList& checks);
void addInputDefaultChecks(CheckList& checks);
void addNumberTextChecks(CheckList& checks);
void addVectorTextChecks(CheckList& checks);
void addRunRecordChecks(CheckList& checks);
void addRefusedInputChecks(CheckList& checks);
void addOutputChecks(CheckList& checks);
void addValueTextChecks(CheckList& checks);
void addRefusedOutputChecks(CheckList& checks);
void addArrayChecks(CheckList& checks);
void addListingChecks(CheckList& checks);
void addStatisticsChecks(CheckList& checks);
void addObjectChecks(CheckList& checks);
void addLoggerChecks(CheckList& checks);
void addLifetimeChecks(CheckList& checks);
void addThreadChecks(CheckList& checks);
void addRandomTextChecks(CheckList& checks);
void addRandomArrayChecks(CheckList& checks);

}  // namespace vtlcmd::validator
