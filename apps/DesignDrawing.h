#pragma once

#include <memory>

#include "drawing/host/Drawing.h"
#include "drawing/scheme/modACADExport.h"
#include "platform/errors/Message.h"
#include "platform/text/NumberText.h"

namespace trelonit {

/// Both schemes of a design, drawn by the built-in host for this once, whatever drawing program the
/// machine has. What cannot be drawn is told and left out; null where the host makes no document.
std::shared_ptr<Drawing> DrawingOf(const DrawnDesign& design, MessageService& messages,
                                   const NumberLocale& locale);

}  // namespace trelonit
