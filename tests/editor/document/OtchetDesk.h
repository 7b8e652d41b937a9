#pragma once

#include <cstdint>
#include <deque>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/document/frmOtchetMain.h"
#include "tests/editor/document/WordRecorder.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// A program that brings nothing with it.
class NoResources : public ResourceService {
 public:
  std::string_view CustomBlock(Integer identifier) override {
    throw ResourceNotFoundError(identifier);
  }
  Picture Bitmap(Integer identifier) override { throw ResourceNotFoundError(identifier); }
  Picture Icon(Integer identifier) override { throw ResourceNotFoundError(identifier); }
  std::string String(Integer identifier) override { throw ResourceNotFoundError(identifier); }
};

/// Settings that keep what was written, in its order.
class RecordingSettings : public MemorySettings {
 public:
  using Entry = std::pair<std::string, std::string>;
  void Set(const std::string& section, const std::string& key, const std::string& value) override {
    MemorySettings::Set(section, key, value);
    Sections.push_back(section);
    Written.emplace_back(key, value);
  }
  std::vector<std::string> Sections;
  std::vector<Entry> Written;
};

/// Keeps what was offered and gives the queued answers, then cancels.
class ScriptedCommonDialogs : public CommonDialogs {
 public:
  /// Text and title of what was printed.
  using Print = std::pair<std::string, std::string>;

  FileChoice ShowOpen(const FileChoice& offered) override {
    Opened.push_back(offered);
    return Next(ToOpen, FileChoice{{}, offered.FilterIndex});
  }
  FileChoice ShowSave(const FileChoice& offered) override {
    Saved.push_back(offered);
    return Next(ToSave, FileChoice{{}, offered.FilterIndex});
  }
  std::optional<Color> ShowColor(Color present) override {
    Colors.push_back(present);
    return Next(ToColor, std::optional<Color>());
  }
  std::optional<CharFormat> ShowFont(const CharFormat& present) override {
    Fonts.push_back(present);
    return Next(ToFont, std::optional<CharFormat>());
  }
  void PrintDocument(const RichTextBox& document, const std::string& title) override {
    Printed.emplace_back(document.Text(), title);
  }
  void PreviewDocument(const RichTextBox& document, const std::string& title) override {
    Previewed.emplace_back(document.Text(), title);
  }
  std::optional<std::string> PdfOf(const RichTextBox& document, const std::string& title) override {
    return MakesPdf ? std::optional("%PDF " + title + ": " + document.Text()) : std::nullopt;
  }
  std::string ShowSavePdf(const std::string& offered) override {
    PdfsOffered.push_back(offered);
    return Next(ToSavePdf, std::string());
  }
  void PageSetup() override { ++PageSetups; }

  std::deque<FileChoice> ToOpen;
  std::deque<FileChoice> ToSave;
  std::deque<std::optional<Color>> ToColor;
  std::deque<std::optional<CharFormat>> ToFont;
  std::vector<FileChoice> Opened;
  std::vector<FileChoice> Saved;
  std::vector<Color> Colors;
  std::vector<CharFormat> Fonts;
  std::vector<Print> Printed;
  std::vector<Print> Previewed;
  std::deque<std::string> ToSavePdf;
  std::vector<std::string> PdfsOffered;
  int PageSetups = 0;
  bool MakesPdf = true;

 private:
  template <class Answer>
  static Answer Next(std::deque<Answer>& answers, Answer cancel) {
    if (answers.empty()) {
      return cancel;
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

/// Files of which some claim another length than they have.
class ClaimingFiles : public MemoryFiles {
 public:
  std::uint64_t FileLength(const std::string& path) override {
    const auto claimed = Claimed.find(path);
    return claimed == Claimed.end() ? MemoryFiles::FileLength(path) : claimed->second;
  }
  std::map<std::string, std::uint64_t> Claimed;
};

/// A box that keeps where its caret was put.
class CaretBox : public MemoryRichTextBox {
 public:
  void SetSelStart(Long start) override {
    MemoryRichTextBox::SetSelStart(start);
    Carets.push_back(start);
  }
  std::vector<Long> Carets;
};

/// All that a command that was cancelled leaves alone.
struct DocumentState {
  std::string Rtf;
  std::string FileName;
  std::string Caption;
  std::vector<std::string> Panels;
  TextSpan Selection;
  Long UndoCount = 0;
  Long RedoCount = 0;
  bool Changed = false;
  bool RichEditing = false;
  bool Enabled = false;

  friend bool operator==(const DocumentState&, const DocumentState&) = default;
};

inline void PrintTo(const DocumentState& state, std::ostream* stream) {
  *stream << state.Caption << " (" << state.FileName << "), changed " << state.Changed << ", undo "
          << state.UndoCount << '/' << state.RedoCount << ", caret " << state.Selection.Start << '+'
          << state.Selection.Length;
  for (const std::string& panel : state.Panels) {
    *stream << " [" << panel << ']';
  }
  *stream << '\n' << state.Rtf;
}

/// The document window over a world in memory, not yet loaded.
struct OtchetDesk {
  using Messages = std::vector<Message>;
  using Texts = std::vector<std::string>;
  static constexpr MessageAnswer yes = MessageAnswer::Yes;
  static constexpr MessageAnswer no = MessageAnswer::No;
  static constexpr MessageAnswer cancel = MessageAnswer::Cancel;

  explicit OtchetDesk(const std::string& commandLine = "", NumberLocale locale = {})
      : numbers(std::move(locale)), form(Bundle(), box, dialogs, Openers(), commandLine) {}

  Services Bundle() { return Bundle(word, files); }
  Services Bundle(AutomationService& automation, FileService& fileSystem) {
    return {world.Messages, world.Dialogs, world.Clipboard, settings,   world.Registry, automation,
            world.Shell,    world.Clock,   resources,       fileSystem, numbers,        "/program"};
  }
  frmOtchetMain::Openers Openers() {
    return {.ShowFind = [this](frmFind&) { ++findsShown; },
            .ShowDate = [this](frmDate&) { ++datesShown; },
            .ShowAssoc = [this] { ++assocsShown; },
            .ExportToDrawing = [this] { ++exports; },
            .PdfWithDrawings =
                [](const RichTextBox& document, const std::string& title) {
                  return "%PDF " + title + ": " + document.Text() + " + drawings";
                }};
  }

  /// What the user was told since the last question.
  Messages Said() { return std::exchange(world.Messages.Shown, {}); }
  void Answer(MessageAnswer answer) { world.Messages.Answers.push_back(answer); }
  /// Puts a text in at the caret, as one step.
  void Enter(const std::string& text) { form.RTF_TextCommitted(text); }
  void Open(const std::string& name, Long kind = allFilesKind) {
    dialogs.ToOpen.push_back({name, kind});
    form.mnuFileOpen_Click();
  }
  void SaveAs(const std::string& name, Long kind) {
    dialogs.ToSave.push_back({name, kind});
    form.mnuFileSaveAs_Click();
  }
  std::string Panel(Long number) { return form.SBPanels[number].Caption(); }
  DocumentState State() {
    DocumentState state{.Rtf = box.TextRTF(),
                        .FileName = form.FileName(),
                        .Caption = form.Form.Caption(),
                        .Panels = {},
                        .Selection = {box.SelStart(), box.SelLength()},
                        .UndoCount = form.Undo.UndoCount(),
                        .RedoCount = form.Undo.RedoCount(),
                        .Changed = form.Changed(),
                        .RichEditing = form.Undo.RichEditing(),
                        .Enabled = box.Enabled()};
    for (const Label& panel : form.SBPanels) {
      state.Panels.push_back(panel.Caption());
    }
    return state;
  }
  /// A changed document with steps to undo and to redo, a selection and a file name.
  void MakeUnsavedDocument() {
    files.Content["/home/old.txt"] = "old text";
    Open("/home/old.txt");
    Enter("one ");
    Enter("two ");
    form.Undo.Undo();
    box.Select(1, 2);
    form.RTF_SelChange();
  }

  static Message SaveQuestion() {
    return {.Title = "",
            .Text = "The current file has changed. Do you wish to save changes ?",
            .Style = MessageStyle::QuestionYesNoCancel};
  }
  static Message ReplaceQuestion() {
    return {.Title = "Переписать файл ?",
            .Text = "Такой файл уже существует! Заменить?",
            .Style = MessageStyle::QuestionYesNo};
  }
  static Message WordFailure() {
    return {.Title = "", .Text = "Error converting Word Document", .Style = MessageStyle::Critical};
  }
  static Message Failure(const std::string& title, ErrorNumber number) {
    const RuntimeError error(number);
    return ErrorMessage(title, error.Number(), error.Description());
  }

  NumberLocale numbers;
  NoResources resources;
  World world{resources};
  RecordingSettings settings;
  ClaimingFiles files;
  WordRecorder word{world.Clipboard, files};
  CaretBox box;
  ScriptedCommonDialogs dialogs;
  int findsShown = 0;
  int datesShown = 0;
  int assocsShown = 0;
  int exports = 0;
  frmOtchetMain form;
};

/// The loaded window without a document.
class OtchetTest : public ::testing::Test, protected OtchetDesk {
 protected:
  OtchetTest() { form.Form_Load(); }
};

}  // namespace trelonit::test
