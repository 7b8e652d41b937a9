#pragma once

#include <string>

#include "editor/document/RichDocument.h"
#include "platform/system/Services.h"

namespace trelonit {

/// What the document window keeps between runs. Lengths are twips; a pixel has 15.
struct EditorSettings {
  double MainLeft = 1000;
  double MainTop = 1000;
  double MainWidth = 8500;
  double MainHeight = 6500;
  bool MainMaximized = false;
  Color Backcolor = 0xFFFFFF;
  bool Statusbar = true;
  bool Toolbar = false;
  bool Wordwrap = true;
  CharFormat Font{.FontName = "Lucida Console", .FontSize = 9};
};

/// The program title under which the settings stand.
constexpr const char* editorProgramTitle = "Trelo_calculation";

/// What is missing or makes no sense has its default.
EditorSettings LoadEditorSettings(SettingsService& settings, const NumberLocale& locale);

/// Writes single settings, by their keys.
class EditorSettingsWriter {
 public:
  EditorSettingsWriter(SettingsService& settings, const NumberLocale& locale)
      : settings_(settings), locale_(locale) {}
  void Write(const char* key, bool value);
  void Write(const char* key, double value);
  void Write(const char* key, const std::string& value);
  /// The seven keys of a font.
  void WriteFont(const CharFormat& font);

 private:
  SettingsService& settings_;
  const NumberLocale& locale_;
};

}  // namespace trelonit
