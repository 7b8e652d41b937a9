#pragma once

#include <string>

#include "drawing/autocad/clsAutoCAD.h"
#include "drawing/scheme/SchemeLayout.h"
#include "platform/errors/Message.h"
#include "platform/system/Services.h"
#include "platform/text/NumberText.h"

namespace trelonit {

/// What every scheme routine works with. References only, for the time of one export.
struct DrawingTools {
  const clsAutoCAD& ACAD;
  MessageService& Messages;
  const NumberLocale& Locale;
};

/// The title of the box in which a scheme routine tells its run-time error.
constexpr const char* schemeErrorTitle = "AutoCAD Export";

DrawingPoint PointAt(const SheetPoint& point);

/// Fits the dimensions of the drawing to the height of the truss.
void SetDimensionScale(const SchemeSheet& sheet, const AutomationHandle& space);

/// Dimensions with their properties. Raises 91 where a dimension could not be drawn, otherwise what
/// the host raises.
void DrawDimensions(const DrawingTools& tools, const SchemeLayout& layout, const SchemeSheet& sheet,
                    const AutomationHandle& space);

/// Over the middle of the span, that many text heights above the upper chord.
void DrawTitle(const DrawingTools& tools, const std::string& title, double rise,
               const SchemeSheet& sheet, const AutomationHandle& space);

}  // namespace trelonit
