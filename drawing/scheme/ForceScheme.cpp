#include "drawing/scheme/ForceScheme.h"

#include "platform/errors/Guard.h"

namespace trelonit {

namespace {

const BoundedArray<double>& ForcesOf(const TreloResult& result, SectionPlace group) {
  switch (group) {
    case sectionUpPoyas:
      return result.UpPoyasForce;
    case sectionDwnPoyas:
      return result.DwnPoyasForce;
    case sectionStoyka:
      return result.StoykaForce;
    case sectionRaskos:
    case sectionOpornRaskos:
      break;
  }
  return result.RaskosForce;
}

/// Three lines: the shaft down from the upper chord's level and the head at its top.
void DrawArrow(const DrawingTools& tools, Real x, const SchemeSheet& sheet,
               const AutomationHandle& space) {
  const DrawingPoint head = PointAt(x, sheet.H);
  const Real side = sheet.H / 8;
  const Real level = 7 * sheet.H / 8;
  tools.ACAD.DrawLine(space, head, PointAt(x, sheet.H / 2));
  tools.ACAD.DrawLine(space, head, PointAt(x - side, level));
  tools.ACAD.DrawLine(space, head, PointAt(x + side, level));
}

void DrawReaction(const DrawingTools& tools, const std::string& name, double reaction, Real arrowX,
                  Real textX, const SchemeSheet& sheet, const AutomationHandle& space) {
  DrawArrow(tools, arrowX, sheet, space);
  // All digits: intended, only the bars show two decimals.
  tools.ACAD.DrawText(space, PointAt(textX, sheet.H / 2),
                      name + " = " + NumberToText(reaction, tools.Locale), 0, 1.5 * sheet.t);
}

void DrawForm(SchemeLayout (*layoutOf)(const SchemeSheet&), double titleRise,
              const DrawingTools& tools, const TreloData& data, const TreloResult& result,
              const AutomationHandle& space) {
  Guard(tools.Messages, schemeErrorTitle, [&] {
    const SchemeSheet sheet = ForceSheet(data, result);
    SetDimensionScale(sheet, space);
    const SchemeLayout layout = layoutOf(sheet);
    for (const SchemeBar& bar : layout.Bars) {
      tools.ACAD.DrawLineAndText(space, PointAt(bar.From), PointAt(bar.To),
                                 ForcesOf(result, bar.Group)[bar.Number], bar.Rotation, sheet.t);
    }
    DrawDimensions(tools, layout, sheet, space);
    DrawTitle(tools, " Схема усилий", titleRise, sheet, space);
    DrawReaction(tools, "Ra", result.ReactLeft, 0, -6 * sheet.t, sheet, space);
    DrawReaction(tools, "Rb", result.ReactRight, sheet.L, sheet.L + 7 * sheet.t, sheet, space);
  });
}

}  // namespace

void DrawForceScheme1(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                      const AutomationHandle& space) {
  DrawForm(LayoutOfScheme1, 5, tools, data, result, space);
}

void DrawForceScheme2(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                      const AutomationHandle& space) {
  DrawForm(LayoutOfScheme2, 5, tools, data, result, space);
}

void DrawForceScheme3(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                      const AutomationHandle& space) {
  DrawForm(LayoutOfScheme3, 5, tools, data, result, space);
}

void DrawForceScheme4(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                      const AutomationHandle& space) {
  DrawForm(LayoutOfScheme4, 7.5, tools, data, result, space);
}

void DrawReservedForceScheme(const DrawingTools& /*tools*/, const TreloData& /*data*/,
                             const TreloResult& /*result*/, const AutomationHandle& /*space*/) {}

}  // namespace trelonit
