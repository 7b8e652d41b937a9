#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "platform/Controls.h"
#include "platform/NumberText.h"
#include "workstation/ResultPicture.h"

namespace trelonit {

/// The deflection and its limit, metres.
struct ProgibResult {
  double Value = 0;
  double Limit = 0;
  /// A deflection equal to the limit satisfies it.
  bool Satisfied = false;
};

/// What the results window shows.
struct ResultLists {
  std::vector<std::string> lstForces;
  /// Rows of two texts, without the head row.
  std::vector<Grid::Row> MSFlexGKoefUse;
  std::optional<ProgibResult> Progib;
  /// The same as a drawing.
  ResultPicture Picture;
};

/// Bar forces by group, reactions and mass, line by line. Raises 9 for an empty result.
std::vector<std::string> BuildForceList(Long treloType, const TreloResult& result, double mass,
                                        const NumberLocale& locale);

/// The utilisation coefficients by group. Strength and stability that are not above 0 have no row.
std::vector<Grid::Row> BuildUtilisationGrid(Long treloType, const CheckResult& check,
                                            const NumberLocale& locale);

/// By row of that grid: whether its coefficient is above 1.
std::vector<bool> RowsOverLimit(Long treloType, const CheckResult& check);

/// The lines on the deflection that follow the forces.
std::vector<std::string> ProgibLines(const ProgibResult& progib, const NumberLocale& locale);

}  // namespace trelonit
