#pragma once

#include <string>

#include "apps/cli/ConsoleSession.h"

namespace trelonit::cli {

struct NewOptions {
  std::string Output;
  bool Force = false;
};
/// The start-up defaults as a project file.
Status RunNew(const NewOptions& options);

struct CalcOptions {
  std::string Project;
  bool Json = false;
  bool BarForce = false;
};
/// Restores a project, checks its geometry, calculates, prints the two lists.
Status RunCalc(const CalcOptions& options);

/// The standards of the catalogue in memory.
Status RunCatalogueList();

struct CatalogueShowOptions {
  std::string Standard;  ///< number or name
  std::string Size;      ///< designation; empty for all
};
Status RunCatalogueShow(const CatalogueShowOptions& options);

/// Area and moments of inertia of all records against their dimensions.
Status RunCatalogueVerify();

}  // namespace trelonit::cli
