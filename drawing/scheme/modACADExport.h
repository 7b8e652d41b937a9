#pragma once

#include <optional>

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "drawing/autocad/clsAutoCAD.h"
#include "drawing/scheme/SchemeDrawing.h"
#include "platform/errors/Message.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"
#include "platform/text/NumberText.h"

namespace trelonit {

/// Draw the scheme that TreloType names, 1 to 10, into the model space. Another number shows a
/// message and draws nothing. No run-time error leaves them.
void DrawForceScheme(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                     const AutomationHandle& space);
void DrawGeometryScheme(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                        const SectionArray& sections, const AutomationHandle& space);

/// The design that a report describes. References: the owner keeps the records while there is an
/// export over them.
struct DrawnDesign {
  const TreloData& Data;
  const TreloResult& Result;
  const SectionArray& ElementSection;
};

/// The report window's way to the drawing host, and what it keeps between two exports.
class ACADExport {
 public:
  /// The state of the connection is shown in the panel.
  ACADExport(AutomationService& automation, MessageService& messages, NumberLocale locale,
             const DrawnDesign& design, Label& statusPanel);

  /// Draws force and geometry scheme in a new drawing of the host. A failure is told; no run-time
  /// error leaves it.
  void mnuFileAutoCAD_Click();

  /// The drawing of the last export, empty before one came so far.
  const AutomationHandle& Document() const { return document_; }

 private:
  void Export();

  AutomationService& automation_;
  MessageService& messages_;
  NumberLocale locale_;
  DrawnDesign design_;
  Label& statusPanel_;

  std::optional<clsAutoCAD> ACAD_;
  AutomationHandle application_;
  AutomationHandle document_;
};

}  // namespace trelonit
