#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/forms/Controls.h"
#include "platform/text/NumberText.h"
#include "workstation/design/Calculation.h"
#include "workstation/design/SecondOpinion.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

/// What stands beside a row of the utilisation grid.
struct ResultRow {
  ElementGroup Group = ElementGroup::UpPoyas;
  /// The checks of the row, as Explanation::Check names them; none for the head of a group.
  std::vector<std::string> Checks;
  /// The opinion's figure; empty where it has none.
  std::string Opinion;
  bool OpinionFails = false;
  /// The bar that rules the opinion's figure, by the numbers of the picture.
  std::optional<Long> Bar;
};

/// What the results window shows, made from one calculation.
struct ResultLists {
  std::vector<std::string> lstForces;
  /// Rows of two texts, without the head row.
  std::vector<Grid::Row> MSFlexGKoefUse;
  /// The same as a drawing.
  ResultPicture Picture;
  /// What the second opinion says of it, and its place beside the rows of the grid.
  SecondOpinion Opinion;
  std::vector<ResultRow> Rows;
  /// How the numbers of the explanations are written.
  NumberLocale Locale;
  Calculation Of;
};

/// Bar forces by group, reactions and mass, line by line. Raises 9 for an empty result.
std::vector<std::string> BuildForceList(const Calculation& calculation, const NumberLocale& locale);

/// The utilisation coefficients by group. Strength and stability that are not above 0 have no row.
std::vector<Grid::Row> BuildUtilisationGrid(const Calculation& calculation,
                                            const NumberLocale& locale);

/// By row of that grid: its checks and the opinion's figure.
std::vector<ResultRow> BuildResultRows(const Calculation& calculation, const Opinion& opinion,
                                       const NumberLocale& locale);

/// By row of that grid: whether its coefficient is above 1.
std::vector<bool> RowsOverLimit(const Calculation& calculation);

/// The lines on the deflection that follow the forces.
std::vector<std::string> ProgibLines(const ProgibResult& progib, const NumberLocale& locale);

}  // namespace trelonit
