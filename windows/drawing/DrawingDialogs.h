#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "windows/drawing/DrawingPages.h"

class QPrinter;
class QWidget;

namespace trelonit {

/// A kind of file that a drawing can be saved as.
struct DrawingFileKind {
  const char* Name;       ///< of the entries of the window: "SaveDxf"
  const char* Caption;    ///< of the dialogue
  const char* Filter;     ///< as the dialogue takes it
  const char* Extension;  ///< without a point
  /// The bytes of the file.
  std::string (*Write)(const Drawing& drawing, const SheetChoice& choice);
};

/// DXF first, then the pages.
const std::vector<DrawingFileKind>& DrawingFileKinds();

/// Asks for a name and writes the file. The name is offered with the extension of the kind;
/// afterwards it is the one taken. A failure is told and leaves the old file whole. Returns whether
/// a file was written.
bool SaveDrawing(const Drawing& drawing, const DrawingFileKind& kind, const SheetChoice& choice,
                 QString& name, QWidget* parent);

/// Asks for the printer and prints one page; the dialogue begins with the given paper.
void PrintDrawing(const Drawing& drawing, const SheetChoice& choice, QPrinter& printer,
                  QWidget* parent);

}  // namespace trelonit
