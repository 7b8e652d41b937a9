#pragma once

#include <optional>
#include <string>

#include "editor/document/RichTextBox.h"

namespace trelonit {

/// What the dialogs that ask for a document's name offer. The kinds count from 1.
constexpr const char* documentFilter =
    "Plain text (*.txt)|*.txt|Rich text (*.rtf)|*.rtf|Word Document (*.doc)|*.doc|"
    "All files (*.*)|*.*";
constexpr Long plainTextKind = 1;
constexpr Long richTextKind = 2;
constexpr Long wordKind = 3;
constexpr Long allFilesKind = 4;

/// The name that a dialog opens with, and the kind; the same as its answer. An empty name is a
/// cancel.
struct FileChoice {
  std::string Name;
  Long FilterIndex = plainTextKind;

  friend bool operator==(const FileChoice&, const FileChoice&) = default;
};

/// The desktop's common dialogues.
class CommonDialogs {
 public:
  virtual ~CommonDialogs() = default;
  virtual FileChoice ShowOpen(const FileChoice& offered) = 0;
  /// Does not ask before an existing file is replaced: that is the caller's question.
  virtual FileChoice ShowSave(const FileChoice& offered) = 0;
  /// Nothing where the user cancels.
  virtual std::optional<Color> ShowColor(Color present) = 0;
  virtual std::optional<CharFormat> ShowFont(const CharFormat& present) = 0;
  /// Asks for a printer and prints there under this title.
  virtual void PrintDocument(const RichTextBox& document, const std::string& title) = 0;
  /// The pages as they would be printed, which can be stored as PDF from there.
  virtual void PreviewDocument(const RichTextBox& document, const std::string& title) = 0;
  /// The name under which pages are to be stored; empty for a cancel. Does not ask before an
  /// existing file is replaced either.
  virtual std::string ShowSavePdf(const std::string& /*offered*/) { return {}; }
  /// The bytes of a PDF file with the pages as they would be printed; nothing where the machine
  /// makes none.
  virtual std::optional<std::string> PdfOf(const RichTextBox& /*document*/,
                                           const std::string& /*title*/) {
    return std::nullopt;
  }
  /// Paper and margins of what is printed next.
  virtual void PageSetup() = 0;
};

/// A machine without windows: every question is cancelled, nothing is printed.
class NoCommonDialogs : public CommonDialogs {
 public:
  FileChoice ShowOpen(const FileChoice& offered) override { return {{}, offered.FilterIndex}; }
  FileChoice ShowSave(const FileChoice& offered) override { return {{}, offered.FilterIndex}; }
  std::optional<Color> ShowColor(Color) override { return std::nullopt; }
  std::optional<CharFormat> ShowFont(const CharFormat&) override { return std::nullopt; }
  void PrintDocument(const RichTextBox&, const std::string&) override {}
  void PreviewDocument(const RichTextBox&, const std::string&) override {}
  void PageSetup() override {}
};

}  // namespace trelonit
