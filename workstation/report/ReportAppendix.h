#pragma once

#include "workstation/design/SecondOpinion.h"
#include "workstation/report/ReportLines.h"

namespace trelonit {

/// The appendix of the report: findings, the figures of the calculation beside those of the second
/// opinion, every check explained.
void WriteReportAppendix(const CheckResult& check, const SecondOpinion& opinion,
                         const NumberLocale& locale, const ReportSink& sink);

/// What the opinion does not look at, a sentence for the user.
extern const char* const opinionLimits;

/// The word before a finding of this severity.
const char* SeverityWord(Severity severity);

}  // namespace trelonit
