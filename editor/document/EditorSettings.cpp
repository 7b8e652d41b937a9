#include "editor/document/EditorSettings.h"

#include <algorithm>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

std::string Section() {
  return std::string("Kelv Software\\") + editorProgramTitle + "\\Settings";
}

/// Reads the settings key by key into the fields, which hold the defaults.
class Reader {
 public:
  Reader(SettingsService& settings, const NumberLocale& locale)
      : settings_(settings), locale_(locale) {}

  /// The value is taken where it lies within the bounds.
  void Read(const char* key, double& field, double least, double greatest) {
    const std::string text = Text(key);
    if (text.empty()) {
      return;
    }
    try {
      const double value = Number(text);
      if (value >= least && value <= greatest) {
        field = value;
      }
    } catch (const RuntimeError&) {
      // Another program's or a damaged value: the default stays.
    }
  }
  void Read(const char* key, bool& field) {
    const std::string text = Text(key);
    if (text.empty()) {
      return;
    }
    try {
      field = TextToBoolean(text, locale_);
    } catch (const RuntimeError&) {
      // As above.
    }
  }
  void Read(const char* key, Color& field) {
    double value = field;
    constexpr double white = 0xFFFFFF;
    Read(key, value, 0, white);
    field = static_cast<Color>(value);
  }
  void Read(const char* key, std::string& field) {
    if (const std::string text = Text(key); !text.empty()) {
      field = text;
    }
  }

 private:
  std::string Text(const char* key) { return settings_.Get(Section(), key, ""); }
  /// The settings outlive a change of the system's decimal separator.
  double Number(std::string text) const {
    try {
      return TextToNumber(text, locale_);
    } catch (const RuntimeError&) {
      std::replace(text.begin(), text.end(), ',', '.');
      return TextToNumber(text, {});
    }
  }

  SettingsService& settings_;
  const NumberLocale& locale_;
};

}  // namespace

EditorSettings LoadEditorSettings(SettingsService& settings, const NumberLocale& locale) {
  constexpr double farthest = 1e6;
  constexpr double smallest = 500;
  constexpr double largestFont = 1638;
  EditorSettings read;
  Reader reader(settings, locale);
  reader.Read("MainLeft", read.MainLeft, -farthest, farthest);
  reader.Read("MainTop", read.MainTop, -farthest, farthest);
  reader.Read("MainWidth", read.MainWidth, smallest, farthest);
  reader.Read("MainHeight", read.MainHeight, smallest, farthest);
  reader.Read("MainMaximized", read.MainMaximized);
  reader.Read("Backcolor", read.Backcolor);
  reader.Read("Statusbar", read.Statusbar);
  reader.Read("Toolbar", read.Toolbar);
  reader.Read("Wordwrap", read.Wordwrap);
  reader.Read("Fontname", read.Font.FontName);
  reader.Read("FontSize", read.Font.FontSize, 1, largestFont);
  reader.Read("Bold", read.Font.Bold);
  reader.Read("Italic", read.Font.Italic);
  reader.Read("StrikeThru", read.Font.StrikeThru);
  reader.Read("Underline", read.Font.Underline);
  reader.Read("Color", read.Font.TextColor);
  return read;
}

void EditorSettingsWriter::Write(const char* key, const std::string& value) {
  settings_.Set(Section(), key, value);
}

void EditorSettingsWriter::Write(const char* key, bool value) {
  Write(key, BooleanToText(value));
}

void EditorSettingsWriter::Write(const char* key, double value) {
  Write(key, NumberToText(value, locale_));
}

void EditorSettingsWriter::WriteFont(const CharFormat& font) {
  Write("Fontname", font.FontName);
  Write("FontSize", font.FontSize);
  Write("Bold", font.Bold);
  Write("Italic", font.Italic);
  Write("StrikeThru", font.StrikeThru);
  Write("Underline", font.Underline);
  Write("Color", static_cast<double>(font.TextColor));
}

}  // namespace trelonit
