#include "windows/editor/RichDocumentHtml.h"

#include <QTextDocument>
#include <QUrl>
#include <QVariant>
#include <cstddef>

#include "windows/binding/Binding.h"
#include "windows/editor/RichDocumentQt.h"

namespace trelonit {

namespace {

/// A page from the clipboard must not make the program open files.
class ClosedDocument : public QTextDocument {
 protected:
  QVariant loadResource(int, const QUrl&) override { return {}; }
};

}  // namespace

RichDocument FromHtml(const std::string& html) {
  ClosedDocument document;
  document.setUndoRedoEnabled(false);
  // A line end behind the page would be a blank of its last paragraph.
  const std::size_t last = html.find_last_not_of(" \t\r\n");
  document.setHtml(ToQt(html.substr(0, last == std::string::npos ? 0 : last + 1)));
  return ReadDocument(document);
}

}  // namespace trelonit
