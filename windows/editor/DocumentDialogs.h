#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "drawing/host/TitleBlock.h"
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
  std::string ShowSavePdf(const std::string& offered) override;
  /// The same with a sheet for each drawing behind the pages.
  std::string PdfWithDrawings(const RichTextBox& document, const std::string& title,
                              const std::vector<std::shared_ptr<Drawing>>& drawings,
                              const std::optional<TitleBlock>& block);
  void PageSetup() override;

 private:
  /// Looking for printers takes a while: it is done when one is needed.
  QPrinter& Printer();
  void StorePdf(const RichTextBox& document, const std::string& title, QWidget* parent);

  std::unique_ptr<QPrinter> printer_;
};

}  // namespace trelonit
