#pragma once

#include <QPagedPaintDevice>
#include <QWidget>

#include "workstation/results/ResultTable.h"

namespace trelonit {

/// Paints the table on pages of the device, its head on every page. Gives the number of pages.
/// Raises 57 where the device fails.
int PaintTable(const ResultTable& table, const NumberLocale& locale, QPagedPaintDevice& device);

/// Shows the pages as they will be printed, on landscape paper; from there they are printed.
void PreviewTable(const ResultTable& table, const NumberLocale& locale, QWidget* parent);

}  // namespace trelonit
