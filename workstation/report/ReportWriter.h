#pragma once

#include <string>
#include <string_view>

#include "platform/text/NumberText.h"
#include "workstation/report/ReportLines.h"

namespace trelonit {

/// Lines of the report with the numbers in them.
class ReportWriter {
 public:
  static constexpr std::string_view lineEnd = "\r\n";

  ReportWriter(const NumberLocale& locale, const ReportSink& sink) : locale_(locale), sink_(sink) {}

  void Line(const std::string& text) { sink_({.Text = text + std::string(lineEnd)}); }
  void Warning(const std::string& text) {
    sink_({.Text = text + std::string(lineEnd), .Warning = true});
  }
  void Heading(const std::string& text) {
    sink_({.Text = std::string(lineEnd) + text + std::string(lineEnd), .Heading = true});
  }
  /// With an empty line after it.
  void SpacedHeading(const std::string& text) { Heading(text + std::string(lineEnd)); }
  /// A number as it is.
  void Value(const std::string& text, double value, const std::string& unit = {}) {
    Line(text + Number(value) + unit);
  }
  /// A number with five decimals.
  void Five(const std::string& text, double value, const std::string& unit = {}) {
    constexpr int decimals = 5;
    Line(text + FormatShown(value, decimals, locale_) + unit);
  }
  std::string Number(double value) const { return NumberToText(value, locale_); }

 private:
  const NumberLocale& locale_;
  const ReportSink& sink_;
};

}  // namespace trelonit
