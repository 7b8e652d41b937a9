#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/text/NumberText.h"
#include "workstation/design/Calculation.h"

namespace trelonit {

/// A part of a line of the report.
struct ReportSpan {
  enum class Kind {
    Caption,  ///< words, line ends included
    Value,
    Unit,  ///< behind its value
    Title  ///< of the lines that follow
  };
  std::string Text;
  Kind Is = Kind::Caption;

  friend bool operator==(const ReportSpan&, const ReportSpan&) = default;
};

/// What the report appends at once: mostly a line, its end (carriage return, line feed) included.
struct ReportPiece {
  std::vector<ReportSpan> Spans;
  /// A heading of the report, with a line end before it.
  bool Heading = false;
  /// Tells that a limit is exceeded.
  bool Warning = false;

  std::string Text() const;
  friend bool operator==(const ReportPiece&, const ReportPiece&) = default;
};

using ReportSink = std::function<void(const ReportPiece&)>;

/// What the report tells of the form beside the calculation.
struct ReportInputs {
  std::string SteelName;
  bool ProgibOn = false;
  bool ProgibUpper = true;
  std::string LenLim;  ///< "1 / 120"
};

/// The calculation report, one piece after the other, up to the deflection: input, sections, loads,
/// forces, coefficients, reactions. The texts are the established ones, misspellings and Latin
/// letters in them included. Raises 9 at the forces of a reserved scheme; what was written by then
/// stays.
void WriteReport(const Calculation& calculation, const ReportInputs& inputs,
                 const NumberLocale& locale, const ReportSink& sink);

/// The section on the deflection.
void WriteReportProgib(const ProgibResult& progib, const NumberLocale& locale,
                       const ReportSink& sink);

/// The end of the report: angles, lengths and slenderness.
void WriteReportAdditional(const Calculation& calculation, const NumberLocale& locale,
                           const ReportSink& sink);

}  // namespace trelonit
