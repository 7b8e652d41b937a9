#pragma once

#include <QObject>
#include <QSettings>
#include <QTimer>
#include <memory>
#include <optional>

#include "platform/console/ConsoleServices.h"
#include "platform/system/Services.h"

namespace trelonit {

class HelpViewer;

// The services of a desktop, by Qt.

/// Message boxes, modal to the window that is in front.
class DesktopMessages : public MessageService {
 public:
  MessageAnswer Show(const Message& message) override;
};

/// File dialogs. They do not ask before an existing file is replaced: that is the program's own
/// question.
class DesktopDialogs : public DialogService {
 public:
  std::string AskSaveName(const FileDialogRequest& request) override;
  std::string AskOpenName(const FileDialogRequest& request) override;
};

class DesktopClipboard : public ClipboardService {
 public:
  DesktopClipboard();
  /// Asks the owner of the content only which forms it has, and only after a change of it: this is
  /// asked ten times a second, and what the content is may take long to hand over.
  bool HasText() override;
  std::string Text() override;
  void SetText(const std::string& text) override;
  std::string RichText() override;
  void SetRichText(const std::string& rtf, const std::string& plain) override;

 private:
  std::optional<bool> hasText_;
  QObject changes_;
};

/// Settings of the user, in the desktop's own store. What is set is stored once the events run, all
/// in one go: the store waits each time until the disk has it, and a window that closes may set
/// twenty. What another program has stored is seen as long as nothing waits.
class DesktopSettings : public SettingsService {
 public:
  DesktopSettings();
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& fallback) override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  QSettings settings_;
  QTimer store_;
};

/// Names are the system's, as on the console; programs and help open in windows.
class DesktopShell : public ConsoleShell {
 public:
  /// The viewer outlives the shell.
  explicit DesktopShell(HelpViewer& help) : help_(help) {}
  void StartProgram(const std::string& path) override;
  /// On Windows the system's viewer opens the file. Elsewhere the program's own window shows the
  /// pages that the file was compiled from, for a viewer of such files is seldom there.
  void OpenHelp(const std::string& path) override;

 private:
  HelpViewer& help_;
};

/// The separators of the desktop's locale.
NumberLocale DesktopNumberLocale();

}  // namespace trelonit
