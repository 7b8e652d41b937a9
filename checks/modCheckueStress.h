#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/ElementGroup.h"
#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "checks/CheckNumbers.h"
#include "platform/errors/Outcome.h"

namespace trelonit {

/// Judges a solved truss: sections, governing forces, effective lengths, slenderness and
/// utilisation of the five element groups, and the mass. A pure function. A run-time error
/// is told and the record returned is empty; the messages on a mass or a bar length that is
/// not positive do not stop the run.
Outcome<CheckResult> CheckueStress(const TreloData& data, const TreloResult& res,
                                   const CheckNumbers& numbers, const SectionArray& sections);

/// Brings a whole check of the same truss up to date after the section of one group has changed;
/// the other blocks stay. False where an error or a message came up, or where the check had failed:
/// it is then to be made anew, so that these appear as they always do.
bool RecheckGroup(CheckResult& check, ElementGroup group, const TreloData& data,
                  const TreloResult& res, const CheckNumbers& numbers,
                  const SectionArray& sections);

}  // namespace trelonit
