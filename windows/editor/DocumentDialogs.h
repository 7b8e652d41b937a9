#pragma once

#include <memory>

#include "editor/dialogs/ModCmnDlg.h"

class QPrinter;
class QWidget;

namespace trelonit {

/// The common dialogues of a desktop, by Qt. The printer with its paper is chosen once a session.
class DocumentDialogs : public CommonDialogs {
 public:
  DocumentDialogs();
  ~DocumentDialogs() override;
  DocumentDialogs(const DocumentDialogs&) = delete;
  DocumentDialogs& operator=(const DocumentDialogs&) = delete;

  FileChoice ShowOpen(const FileChoice& offered) override;
  FileChoice ShowSave(const FileChoice& offered) override;
  std::optional<Color> ShowColor(Color present) override;
  std::optional<CharFormat> ShowFont(const CharFormat& present) override;
  void PrintDocument(const RichTextBox& document, const std::string& title) override;
  void PreviewDocument(const RichTextBox& document, const std::string& title) override;
  std::optional<std::string> PdfOf(const RichTextBox& document, const std::string& title) override;
  void PageSetup() override;

 private:
  /// Looking for printers takes a while: it is done when one is needed.
  QPrinter& Printer();
  void StorePdf(const RichTextBox& document, const std::string& title, QWidget* parent);

  std::unique_ptr<QPrinter> printer_;
};

}  // namespace trelonit
