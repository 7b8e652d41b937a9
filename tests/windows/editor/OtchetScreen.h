#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolBar>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/editor/document/OtchetDesk.h"
#include "tests/windows/DialogHands.h"
#include "windows/editor/DateWindow.h"
#include "windows/editor/OtchetWindow.h"

namespace trelonit::test {

/// The document window on screen, over a world in memory. What a test puts into the world before
/// Start is there when the form loads.
class OtchetScreen {
 public:
  /// Loads the form and shows its window.
  void Start(const std::string& commandLine = {}) {
    Load(commandLine);
    ShowActive(*Window);
  }
  /// Loads the form and makes its window, to be shown by the test.
  void Load(const std::string& commandLine = {}) {
    Window.reset();
    Form.reset();
    Box = std::make_unique<QtRichTextBox>();
    Form = std::make_unique<frmOtchetMain>(
        Bundle(), *Box, Dialogs,
        frmOtchetMain::Openers{
            .ShowFind = [this](frmFind& form) { Window->ShowFind(form); },
            .ShowDate = [this](frmDate& form) { DateWindow(form, Window.get()).exec(); },
            .ShowAssoc = [this] { ++AssocsShown; },
            .WhyNoAssoc = WhyNoAssoc,
            .ExportToDrawing = [this] { ++Exports; }},
        commandLine);
    Form->Form_Load();
    Window = std::make_unique<OtchetWindow>(*Form, *Box, nullptr);
  }

  QTextEdit& Edit() { return Find<QTextEdit>(*Window, "RTF"); }
  QToolBar& ToolBar() { return Find<QToolBar>(*Window, "TB"); }
  std::string Panel(int number) {
    return FromQt(Find<QLabel>(*Window, "SB" + std::to_string(number)).text());
  }
  QAction& Entry(const std::string& name) {
    auto* action = Window->findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no menu entry " + name);
    }
    return *action;
  }
  /// Chooses the entry; one that is grey cannot be chosen.
  void Trigger(const std::string& name) {
    if (!Entry(name).isEnabled()) {
      throw std::logic_error("a grey menu entry: " + name);
    }
    Entry(name).trigger();
  }
  /// A key to the text.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Edit(), key, modifiers);
  }
  /// A key with what the keyboard's layout makes of it.
  void KeyOf(int key, const std::string& text, Qt::KeyboardModifiers modifiers = {}) {
    QTest::sendKeyEvent(QTest::Click, &Edit(), static_cast<Qt::Key>(key), ToQt(text), modifiers);
  }
  /// Puts a text in at the caret, as one step.
  void Enter(const std::string& text) { Form->RTF_TextCommitted(text); }
  /// How the first characters of the widget look.
  QTextCharFormat FirstLook() { return Edit().document()->begin().begin().fragment().charFormat(); }
  /// What the widget shows as selected, paragraphs divided by a line feed.
  std::string ShownSelection() {
    QString text = Edit().textCursor().selectedText();
    return FromQt(text.replace(QChar::ParagraphSeparator, QLatin1Char('\n')));
  }
  TextSpan Selection() const { return {Box->SelStart(), Box->SelLength()}; }
  /// The texts of the messages since the last question.
  Texts Said() {
    Texts texts;
    for (const Message& message : std::exchange(Outside.Messages.Shown, {})) {
      texts.push_back(message.Text);
    }
    return texts;
  }
  void Answer(MessageAnswer answer) { Outside.Messages.Answers.push_back(answer); }
  void Store(const std::string& key, const std::string& value) {
    Settings.MemorySettings::Set(settingsSection, key, value);
  }

  static constexpr const char* settingsSection = "Kelv Software\\Trelo_calculation\\Settings";
  static constexpr const char* saveQuestion =
      "The current file has changed. Do you wish to save changes ?";

  Services Bundle() {
    return {Outside.Messages, Outside.Dialogs,    Outside.Clipboard, Settings,
            Outside.Registry, Outside.Automation, Outside.Shell,     Outside.Clock,
            resources_,       Outside.Files,      Outside.Locale,    Outside.ProgramFolder};
  }

 private:
  NoResources resources_;

 public:
  World Outside{resources_};
  RecordingSettings Settings;
  ScriptedCommonDialogs Dialogs;
  int Exports = 0;
  int AssocsShown = 0;
  std::string WhyNoAssoc;
  std::unique_ptr<QtRichTextBox> Box;
  std::unique_ptr<frmOtchetMain> Form;
  std::unique_ptr<OtchetWindow> Window;
};

}  // namespace trelonit::test
