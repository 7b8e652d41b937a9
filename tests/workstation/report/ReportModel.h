#pragma once

#include <string>
#include <vector>

#include "tests/workstation/report/ReportText.h"
#include "workstation/report/ReportLines.h"

namespace trelonit::test {

/// A design whose numbers all differ, so that a swap of any two is seen in its report.
class NumberedDesign {
 public:
  explicit NumberedDesign(Long scheme = 1) {
    TreloData& data = Of.TreloData;
    data.TreloType = scheme;
    data.LengthF = 24.5;
    data.Hight = 2.25;
    data.LenOporn = 1.75;
    data.PanelNum = 8;
    data.UpPoyasBrace = 1;
    data.DownPoyasBrace = 3;
    Of.TreloData.UpPForce = Array(0, {0, 1.5, -2.25});
    Of.TreloData.UpDistForce = Array(0, {0.125, 0});
    Of.TreloData.DwnPForce = Array(0, {1e-5, 1234567.5});
    Of.TreloData.DwnDistForce = Array(0, {0.375});
    Of.Numbers = {.Ry = 240.5,
                  .E = 210000,
                  .Yc = 0.95,
                  .Gn = 1.05,
                  .Density = 7.85,
                  .Dynamic = false,
                  .LimitUser = 150};
    TreloResult& result = Of.TreloResult;
    result.AngleOporn = 0.910005;
    result.AngleRaskos = 0.82;
    result.LenOpornRaskos = 3.123454;
    result.LenRaskos = 1234.5;
    result.UpPoyasForce = Array(1, {-1.25, -2.5});
    result.DwnPoyasForce = Array(1, {3.75});
    result.RaskosForce = Array(1, {5, -6, 7.125});
    result.StoykaForce = Array(1, {-8.5, 1e-16});
    result.ReactLeft = 20;
    result.ReactRight = 30.5;
    Of.CheckData = {.UpPoyas = Group(100),
                    .DwnPoyas = Group(200),
                    .Stoyka = Group(300),
                    .Raskos = Group(400),
                    .OpornRaskos = Group(500),
                    .Mass = 8.5};
    Put(sectionUpPoyas, "Первый стандарт", "Пер1", 1, 11);
    Put(sectionDwnPoyas, "Второй стандарт", "Вт2", 2, 12.5);
    Put(sectionRaskos, "Третий стандарт", "Тре3", 8, 13);
    Put(sectionOpornRaskos, "Четвёртый стандарт", "Чет4", 11, 14);
    Put(sectionStoyka, "Пятый стандарт", "Пят5", 4, 15);
  }

  static BoundedArray<double> Array(Long lower, const std::vector<double>& values) {
    BoundedArray<double> array(lower, lower - 1);
    for (const double value : values) {
      array.Append(value);
    }
    return array;
  }

  /// The first part of the report: all up to the deflection.
  ReportPieces Pieces(const NumberLocale& locale = PointLocale()) const {
    ReportPieces pieces;
    WriteReport(Of, Inputs, locale, Into(pieces));
    return pieces;
  }
  ReportText Lines(const NumberLocale& locale = PointLocale()) const {
    return LinesOf(Pieces(locale));
  }
  ReportText Additional(const NumberLocale& locale = PointLocale()) const {
    ReportPieces pieces;
    WriteReportAdditional(Of, locale, Into(pieces));
    return LinesOf(pieces);
  }

  static ReportSink Into(ReportPieces& pieces) {
    return [&pieces](const ReportPiece& piece) { pieces.push_back(Flat(piece)); };
  }

  Calculation Of;
  ReportInputs Inputs{
      .SteelName = "Сталь пробная", .ProgibOn = false, .ProgibUpper = true, .LenLim = "1 / 120"};

 private:
  static GroupCheck Group(double first) {
    GroupCheck check;
    check.KStrength = first + 0.1;
    check.KStabX = first + 0.2;
    check.KStabY = first + 0.3;
    check.KFlexX = first + 0.4;
    check.KFlexY = first + 0.5;
    check.KUserX = first + 0.6;
    check.KUserY = first + 0.7;
    check.Area = first + 1;
    check.Jin = first + 2;
    check.Jout = first + 3.5;
    check.LenX = first + 4;
    check.LenY = first + 5;
    check.FlexX = first + 6;
    check.FlexY = first + 7;
    check.LimitX = {.Compress = first + 8, .Tension = first + 9, .Tension2 = first + 10};
    check.LimitY = {.Compress = first + 11, .Tension = first + 12, .Tension2 = first + 13};
    // What no line shows.
    check.AlphaX = check.AlphaY = check.FlexBarX = check.FlexBarY = check.PhiX = check.PhiY = 77;
    check.NMax = check.NComp = {.Value = 77, .Index = 77};
    return check;
  }

  void Put(SectionPlace place, const char* standard, const char* size, Long layout, double gap) {
    SectionRec& section = Of.ElementSection[place];
    section.Profile.Type = standard;
    section.Profile.Name = size;
    section.Layout = layout;
    section.Gdist = gap;
  }
};

}  // namespace trelonit::test
