#pragma once

#include "editor/document/RichDocument.h"

namespace trelonit {

/// How much smaller than told, at this zoom, all letters are to be shown so that the toolkit can
/// lay the text out: 1 for any text that is meant to be read. It counts heights in 32 bits, 64 to a
/// pixel, and goes round for ever where they do not suffice: letters of 800 points all through a
/// report, or some millions of lines.
double FittingScale(const RichDocument& document, double zoom = 1);

}  // namespace trelonit
