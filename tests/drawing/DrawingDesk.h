#pragma once

#include <string>
#include <vector>

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "drawing/scheme/modACADExport.h"
#include "platform/forms/Controls.h"
#include "tests/drawing/RecordingHost.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// Texts of boxes with a stop icon under one title.
inline Message Box(const std::string& title, const std::string& text) {
  return {.Title = title, .Text = text, .Style = MessageStyle::Critical};
}

/// The wrapper over a recording host with one open drawing.
struct WrapperDesk {
  RecordingHost Host;
  RecordingMessages Messages;
  NumberLocale Locale;
  /// What the next random number is.
  double Random = 0;
  clsAutoCAD ACAD{Host, Messages, Locale, [this] { return Random; }};
  RecordingHost::ObjectPtr Document = Host.OpenDocument();
  AutomationHandle Space = std::get<AutomationHandle>(Document->Properties["ModelSpace"]);
};

/// Numbers from the first one on, in steps of 1.
inline BoundedArray<double> Row(Long lower, Long upper, double first) {
  BoundedArray<double> row(lower, upper);
  for (Long place = lower; place <= upper; ++place) {
    row[place] = first + (place - lower);
  }
  return row;
}

/// Records as a report keeps them, made up so that all places on the sheet are round numbers: 2 m
/// high, end panels of 2 m, regular ones of 3 m (scheme 3: all of 4 m). Forces tell group and bar:
/// -11, -12 ... on the upper chord, 21 ... on diagonals, 31 ... on verticals, 41 ... below.
struct RoundDesign {
  RoundDesign(Long scheme, Long n) {
    Data.TreloType = scheme;
    Data.PanelNum = n;
    Data.Hight = 2;
    Data.LenOporn = scheme == 3 ? 4 : 2;
    Data.LengthF = scheme == 3 ? 4.0 * n : 4 + 3.0 * (n - 2);
    Result.LenPanel = scheme == 3 ? 4 : 3;
    Result.AngleOporn = 0.75;
    Result.AngleRaskos = scheme == 3 ? 0 : 0.5;
    Result.LenOpornRaskos = 2.83;
    Result.LenRaskos = 3.61;
    Result.UpPoyasForce = Row(1, n, 11);
    for (double& force : Result.UpPoyasForce) {
      force = -force;
    }
    const Long verticals = scheme == 1 ? n + 1 : scheme == 2 ? n - 1 : scheme == 3 ? n : n / 2;
    const Long lower = scheme == 1 ? n : scheme == 2 ? n - 2 : scheme == 3 ? n - 1 : n / 2 - 1;
    Result.RaskosForce = Row(1, scheme == 3 ? 2 * n : n, 21);
    Result.StoykaForce = Row(1, verticals, 31);
    Result.DwnPoyasForce = Row(1, lower, 41);
    Result.ReactLeft = 12.345678901;
    Result.ReactRight = -0.5;
    // Names of full length, so that no blanks stand behind them.
    const auto name = [this](SectionPlace place, const char* text, bool paired) {
      Sections[place].Profile.Name = text;
      Sections[place].Paired = paired;
    };
    name(sectionUpPoyas, "upper_chord_L63", true);
    name(sectionDwnPoyas, "lower_chord_L50", true);
    name(sectionRaskos, "diagonal___Tr40", false);
    name(sectionOpornRaskos, "support_dia_L75", true);
    name(sectionStoyka, "vertical____L45", false);
  }

  TreloData Data;
  TreloResult Result;
  SectionArray Sections{1, sectionCount};
};

/// The export over a recording host. The design may be changed between two exports.
struct ExportDesk {
  ExportDesk(Long scheme, Long n) : Design(scheme, n) { Host.Running = true; }

  RoundDesign Design;
  RecordingHost Host;
  RecordingMessages Messages;
  Label Panel;
  ACADExport Export{
      Host, Messages, NumberLocale(), {Design.Data, Design.Result, Design.Sections}, Panel};
};

/// Both dispatchers into the model space of an open drawing.
struct SchemeDesk : WrapperDesk {
  SchemeDesk(Long scheme, Long n) : Design(scheme, n) {}
  void Force() { DrawForceScheme(Tools, Design.Data, Design.Result, Space); }
  void Geometry() { DrawGeometryScheme(Tools, Design.Data, Design.Result, Design.Sections, Space); }

  RoundDesign Design;
  DrawingTools Tools{ACAD, Messages, Locale};
};

}  // namespace trelonit::test
