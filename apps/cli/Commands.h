#pragma once

#include <string>

#include "apps/cli/ConsoleSession.h"
#include "apps/cli/Paper.h"

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

struct AuditOptions {
  std::string Project;
  bool Json = false;
  bool Strict = false;  ///< the status tells whether something is dangerous
};
/// Calculates and prints the second opinion: findings, told figures beside its own.
Status RunAudit(const AuditOptions& options);

struct SelectOptions {
  std::string Project;
  std::string Output;  ///< empty: nothing is saved
  bool Force = false;
  bool Json = false;
  bool Opinion = false;  ///< sizes that pass the second opinion too
};
/// The same with automatic selection; the results are those of the proposal, which is saved as a
/// project where an output is named.
Status RunSelect(const SelectOptions& options);

struct ReportOptions {
  std::string Project;
  std::string Output;     ///< a file by its extension, "-" for standard output
  bool Appendix = false;  ///< with the second opinion at its end
};
/// The calculation report.
Status RunReport(const ReportOptions& options, const Paper& paper);

struct DrawOptions {
  std::string Project;
  std::string Output;  ///< a file by its extension
};
/// Force and geometry scheme of a project as a drawing.
Status RunDraw(const DrawOptions& options, const Paper& paper);

struct VariantsOptions {
  std::string Project;
  std::string Output;  ///< a file by its extension, "-" for a table on standard output
  // The axes as they were written; empty where the project's own value stays.
  std::string Scheme, Span, Height, EndPanel, Panels;
  std::string Upper, Lower, Diagonals, SupportDiagonals, Posts;
  std::string Gap, Steel;
  unsigned Best = 0;  ///< how many of the lightest; 0 for all
  std::string Front;  ///< "height" or "progib": only the best in mass against it
  unsigned Jobs = 0;  ///< 0 for all cores
  std::string Shard;  ///< "K/N"
  bool Opinion = false;
};
/// Every combination of the axes' values, each with the sizes that automatic selection gives it.
Status RunVariants(const VariantsOptions& options);

/// The standards of the catalogue in memory.
Status RunCatalogueList();

struct CatalogueShowOptions {
  std::string Standard;  ///< number or name
  std::string Size;      ///< designation; empty for all
};
Status RunCatalogueShow(const CatalogueShowOptions& options);

/// Area and moments of inertia of all records against their dimensions: of the catalogue in memory,
/// or of a data file where one is named.
Status RunCatalogueVerify(const std::string& file);

}  // namespace trelonit::cli
