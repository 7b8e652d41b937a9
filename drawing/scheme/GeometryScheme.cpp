#include "drawing/scheme/GeometryScheme.h"

#include "platform/errors/Guard.h"

namespace trelonit {

namespace {

/// What tells the geometry schemes apart.
struct GeometryForm {
  SchemeLayout (*Layout)(const SchemeSheet&);
  const char* Title;
  double TitleRise;
  bool SetsScale;
};

void DrawForm(const GeometryForm& form, const DrawingTools& tools, const TreloData& data,
              const TreloResult& result, const SectionArray& sections,
              const AutomationHandle& space) {
  Guard(tools.Messages, schemeErrorTitle, [&] {
    const SchemeSheet sheet = GeometrySheet(data, result);
    if (form.SetsScale) {
      SetDimensionScale(sheet, space);
    }
    const SchemeLayout layout = form.Layout(sheet);
    for (const SchemeBar& bar : layout.Bars) {
      const SectionRec& section = sections[bar.Group];
      // The name is drawn as the fixed string that it is, with the blanks behind it.
      tools.ACAD.DrawLineAnd2Text(space, PointAt(bar.From), PointAt(bar.To), bar.Length,
                                  section.Profile.Name.Padded(), bar.Rotation, sheet.t,
                                  section.Paired);
    }
    DrawDimensions(tools, layout, sheet, space);
    DrawTitle(tools, form.Title, form.TitleRise, sheet, space);
  });
}

}  // namespace

void DrawGeometryScheme1(const DrawingTools& tools, const TreloData& data,
                         const TreloResult& result, const SectionArray& sections,
                         const AutomationHandle& space) {
  // Intended: this one alone leaves the scale as the force scheme has set it, and it alone names
  // the truss in its title.
  DrawForm({LayoutOfScheme1, " Геометрическая схема фермы", 10, false}, tools, data, result,
           sections, space);
}

void DrawGeometryScheme2(const DrawingTools& tools, const TreloData& data,
                         const TreloResult& result, const SectionArray& sections,
                         const AutomationHandle& space) {
  DrawForm({LayoutOfScheme2, " Геометрическая схема ", 5, true}, tools, data, result, sections,
           space);
}

void DrawGeometryScheme3(const DrawingTools& tools, const TreloData& data,
                         const TreloResult& result, const SectionArray& sections,
                         const AutomationHandle& space) {
  DrawForm({LayoutOfScheme3, " Геометрическая схема ", 5, true}, tools, data, result, sections,
           space);
}

void DrawGeometryScheme4(const DrawingTools& tools, const TreloData& data,
                         const TreloResult& result, const SectionArray& sections,
                         const AutomationHandle& space) {
  DrawForm({LayoutOfScheme4, " Геометрическая схема ", 7.5, true}, tools, data, result, sections,
           space);
}

void DrawReservedGeometryScheme(const DrawingTools& /*tools*/, const TreloData& /*data*/,
                                const TreloResult& /*result*/, const SectionArray& /*sections*/,
                                const AutomationHandle& /*space*/) {}

}  // namespace trelonit
