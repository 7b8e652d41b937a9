#include "apps/DesignDrawing.h"

#include "drawing/host/BuiltInHost.h"

namespace trelonit {

std::shared_ptr<Drawing> DrawingOf(const DrawnDesign& design, MessageService& messages,
                                   const NumberLocale& locale) {
  BuiltInHost host;
  BuiltInHostAutomation automation(host);
  Label panel;
  ACADExport(automation, messages, locale, design, panel).mnuFileAutoCAD_Click();
  return host.ActiveDocument();
}

}  // namespace trelonit
