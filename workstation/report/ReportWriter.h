#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/text/NumberText.h"
#include "workstation/report/ReportLines.h"

namespace trelonit {

using ReportSpans = std::vector<ReportSpan>;

/// Lines of the report with the numbers in them.
class ReportWriter {
 public:
  static constexpr std::string_view lineEnd = "\r\n";

  ReportWriter(const NumberLocale& locale, const ReportSink& sink) : locale_(locale), sink_(sink) {}

  void Line(const std::string& text) { sink_({.Spans = {{text + std::string(lineEnd)}}}); }
  void Warning(const std::string& text) {
    sink_({.Spans = {{text + std::string(lineEnd)}}, .Warning = true});
  }
  void Heading(const std::string& text) {
    sink_({.Spans = {{std::string(lineEnd) + text + std::string(lineEnd)}}, .Heading = true});
  }
  /// With an empty line after it.
  void SpacedHeading(const std::string& text) { Heading(text + std::string(lineEnd)); }
  /// A line of its own over those of a group.
  void Title(const std::string& text) {
    sink_({.Spans = {{text, ReportSpan::Kind::Title}, {std::string(lineEnd)}}});
  }
  /// A value that is no number.
  void Words(const std::string& caption, const std::string& value) {
    Rows(Valued(caption, value, {}));
  }
  void WarningWords(const std::string& caption, const std::string& value) {
    sink_({.Spans = Valued(caption, value, {}), .Warning = true});
  }
  /// A number as it is.
  void Value(const std::string& caption, double value, const std::string& unit = {}) {
    Rows(Valued(caption, Number(value), unit));
  }
  void WarningValue(const std::string& caption, double value) {
    WarningWords(caption, Number(value));
  }
  /// A number with five decimals.
  void Five(const std::string& caption, double value, const std::string& unit = {}) {
    constexpr int decimals = 5;
    Rows(Valued(caption, FormatShown(value, decimals, locale_), unit));
  }
  /// Several lines at once; none is an empty line.
  void Rows(ReportSpans rows) {
    if (rows.empty()) {
      rows.push_back({std::string(lineEnd)});
    }
    sink_({.Spans = std::move(rows)});
  }
  /// One more line for that.
  static void AddValue(ReportSpans& rows, const std::string& caption, const std::string& value,
                       const std::string& unit) {
    for (ReportSpan& span : Valued(caption, value, unit)) {
      rows.push_back(std::move(span));
    }
  }
  std::string Number(double value) const { return NumberToText(value, locale_); }

 private:
  static ReportSpans Valued(const std::string& caption, const std::string& value,
                            const std::string& unit) {
    ReportSpans spans{{caption}, {value, ReportSpan::Kind::Value}};
    if (!unit.empty()) {
      spans.push_back({unit, ReportSpan::Kind::Unit});
    }
    spans.push_back({std::string(lineEnd)});
    return spans;
  }

  const NumberLocale& locale_;
  const ReportSink& sink_;
};

}  // namespace trelonit
