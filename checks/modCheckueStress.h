#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "platform/Message.h"

namespace trelonit {

/// Steel and reliability data of a check, in the order in which the form reads them.
struct CheckNumbers {
  double Ry = 0;       ///< design resistance, MPa
  double E = 0;        ///< elastic modulus, MPa
  double Yc = 0;       ///< working-condition coefficient
  double Gn = 0;       ///< reliability coefficient by importance
  double Density = 0;  ///< t/m3
  bool Dynamic = false;
  double LimitUser = 0;  ///< the user's limit slenderness
};

/// Judges a solved truss: sections, governing forces, effective lengths, slenderness and
/// utilisation of the five element groups, and the mass. Pure but for its message boxes. A run-time
/// error is shown and the record returned is empty; the messages on a mass or a bar length that is
/// not positive do not stop the run.
CheckResult CheckueStress(const TreloData& data, const TreloResult& res,
                          const CheckNumbers& numbers, const SectionArray& sections,
                          MessageService& messages);

}  // namespace trelonit
