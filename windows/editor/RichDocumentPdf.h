#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <string>

#include "editor/document/RichDocument.h"

class QTextDocument;

namespace trelonit {

// Documents on paper. Needs no widgets, only an application with fonts (QGuiApplication).

/// A4 upright; margins 20 mm left, where it is filed, and 15 mm elsewhere.
QPageLayout PaperLayout();

/// Paints the document, page by page, within the margins of the device, and "Стр. N из M" at the
/// foot of every page. The device's page ranges choose the pages. Returns how many the document
/// has. Raises 57 (Device I/O error) where the device cannot be painted on.
int PaintDocument(const RichDocument& document, QPagedPaintDevice& device);

/// The same with a painter that has begun on the device and goes on with it.
int PaintDocument(const RichDocument& document, QPagedPaintDevice& device, QPainter& painter);

/// The same of a text that is filled already, which takes the size of the pages and breaks where it
/// happens to.
int PaintPages(QTextDocument& text, QPagedPaintDevice& device);

/// The bytes of a PDF file. Raises 57 like the painting.
std::string WritePdf(const RichDocument& document, const std::string& title,
                     const QPageLayout& layout = PaperLayout());

}  // namespace trelonit
