#pragma once

#include <functional>
#include <string>

#include "checks/modCheckueStress.h"
#include "platform/NumberText.h"
#include "workstation/DesignModel.h"
#include "workstation/ResultLists.h"

namespace trelonit {

/// A text that the report appends at once, line ends (carriage return, line feed) included.
struct ReportPiece {
  std::string Text;
  /// A heading of the report, with a line end before it.
  bool Heading = false;
  /// Tells that a limit is exceeded.
  bool Warning = false;

  friend bool operator==(const ReportPiece&, const ReportPiece&) = default;
};

using ReportSink = std::function<void(const ReportPiece&)>;

/// What the report tells of the form beside the model.
struct ReportInputs {
  std::string SteelName;
  CheckNumbers Numbers;
  bool ProgibOn = false;
  bool ProgibUpper = true;
  std::string LenLim;  ///< "1 / 120"
};

/// What the drawings are made from: the design as the last report found it.
struct ReportSnapshot {
  struct TreloData TreloData;
  struct TreloResult TreloResult;
  CheckResult CheckData;
  SectionArray ElementSection{1, sectionCount};
};

/// The calculation report, one piece after the other, up to the deflection: input, sections, loads,
/// forces, coefficients, reactions. The texts are the established ones, misspellings and Latin
/// letters in them included. Raises 9 at the forces of a reserved scheme; what was written by then
/// stays.
void WriteReport(const DesignModel& model, const ReportInputs& inputs, const NumberLocale& locale,
                 const ReportSink& sink);

/// The section on the deflection.
void WriteReportProgib(const ProgibResult& progib, const NumberLocale& locale,
                       const ReportSink& sink);

/// The end of the report: angles, lengths and slenderness.
void WriteReportAdditional(const DesignModel& model, const NumberLocale& locale,
                           const ReportSink& sink);

}  // namespace trelonit
