#include "editor/document/EditorSettings.h"
#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

constexpr const char* section = "Kelv Software\\Trelo_calculation\\Settings";

class StoredSettings : public ::testing::Test {
 protected:
  EditorSettings With(const std::string& key, const std::string& value) {
    MemorySettings settings;
    settings.Set(section, key, value);
    return LoadEditorSettings(settings, locale);
  }
  NumberLocale locale;
};

TEST_F(StoredSettings, HaveTheirDefaultsInAnEmptyStore) {
  const EditorSettings read = With("Another", "1");
  EXPECT_EQ(read.MainLeft, 1000);
  EXPECT_EQ(read.MainTop, 1000);
  EXPECT_EQ(read.MainWidth, 8500);
  EXPECT_EQ(read.MainHeight, 6500);
  EXPECT_EQ(read.Backcolor, 16777215u);
  EXPECT_TRUE(read.Statusbar);
  EXPECT_FALSE(read.Toolbar);
  EXPECT_TRUE(read.Wordwrap);
  EXPECT_EQ(read.Font.FontName, "Lucida Console");
  EXPECT_EQ(read.Font.FontSize, 9);
  EXPECT_FALSE(read.Font.Bold);
  EXPECT_FALSE(read.Font.Italic);
  EXPECT_FALSE(read.Font.StrikeThru);
  EXPECT_FALSE(read.Font.Underline);
  EXPECT_EQ(read.Font.TextColor, 0u);
}

TEST_F(StoredSettings, AreReadEachUnderItsKey) {
  EXPECT_EQ(With("MainLeft", "12.5").MainLeft, 12.5);
  EXPECT_EQ(With("MainTop", "-15").MainTop, -15);
  EXPECT_EQ(With("MainWidth", "500").MainWidth, 500);
  EXPECT_EQ(With("MainHeight", "1E4").MainHeight, 10000);
  EXPECT_EQ(With("Backcolor", "0").Backcolor, 0u);
  EXPECT_FALSE(With("Statusbar", "False").Statusbar);
  EXPECT_TRUE(With("Toolbar", "true").Toolbar);
  EXPECT_FALSE(With("Wordwrap", "0").Wordwrap);
  EXPECT_EQ(With("Fontname", "Шрифт").Font.FontName, "Шрифт");
  EXPECT_EQ(With("FontSize", "10.5").Font.FontSize, 10.5);
  EXPECT_TRUE(With("Bold", "True").Font.Bold);
  EXPECT_TRUE(With("Italic", "-1").Font.Italic);
  EXPECT_TRUE(With("StrikeThru", "True").Font.StrikeThru);
  EXPECT_TRUE(With("Underline", "True").Font.Underline);
  EXPECT_EQ(With("Color", "255").Font.TextColor, 255u);
}

TEST_F(StoredSettings, AreReadUpToTheirBounds) {
  for (const double farthest : {-1e6, 1e6}) {
    EXPECT_EQ(With("MainLeft", NumberToText(farthest, locale)).MainLeft, farthest);
    EXPECT_EQ(With("MainTop", NumberToText(farthest, locale)).MainTop, farthest);
  }
  EXPECT_EQ(With("MainWidth", "1000000").MainWidth, 1e6);
  EXPECT_EQ(With("MainHeight", "500").MainHeight, 500);
  EXPECT_EQ(With("MainHeight", "1000000").MainHeight, 1e6);
  EXPECT_EQ(With("FontSize", "1").Font.FontSize, 1);
  EXPECT_EQ(With("FontSize", "1638").Font.FontSize, 1638);
  EXPECT_EQ(With("Color", "16777215").Font.TextColor, 0xFFFFFFu);
}

TEST_F(StoredSettings, AreReadWithEitherSeparatorInEveryLocale) {
  for (const NumberLocale& system : {PointLocale(), CommaLocale()}) {
    locale = system;
    EXPECT_EQ(With("FontSize", "10.5").Font.FontSize, 10.5);
    EXPECT_EQ(With("FontSize", "10,5").Font.FontSize, 10.5);
  }
}

TEST_F(StoredSettings, HaveTheirDefaultsWhereTheyMakeNoSense) {
  for (const char* value : {"x", "1e7", "-1e7", "1e400", "NaN", " "}) {
    EXPECT_EQ(With("MainLeft", value).MainLeft, 1000) << value;
    EXPECT_EQ(With("MainTop", value).MainTop, 1000) << value;
    EXPECT_EQ(With("MainWidth", value).MainWidth, 8500) << value;
    EXPECT_EQ(With("MainHeight", value).MainHeight, 6500) << value;
  }
  EXPECT_EQ(With("MainWidth", "499").MainWidth, 8500);
  EXPECT_EQ(With("MainHeight", "0").MainHeight, 6500);
  EXPECT_EQ(With("Backcolor", "16777216").Backcolor, 16777215u);
  EXPECT_EQ(With("Backcolor", "-1").Backcolor, 16777215u);
  EXPECT_EQ(With("Color", "red").Font.TextColor, 0u);
  EXPECT_EQ(With("FontSize", "0").Font.FontSize, 9);
  EXPECT_EQ(With("FontSize", "-9").Font.FontSize, 9);
  EXPECT_EQ(With("FontSize", "1639").Font.FontSize, 9);
  EXPECT_TRUE(With("Statusbar", "maybe").Statusbar);
  EXPECT_FALSE(With("Toolbar", "maybe").Toolbar);
  EXPECT_EQ(With("Fontname", "").Font.FontName, "Lucida Console");
}

TEST_F(StoredSettings, AreWrittenAsTheyAreRead) {
  for (const NumberLocale& system : {PointLocale(), CommaLocale()}) {
    RecordingSettings settings;
    EditorSettingsWriter writer(settings, system);
    const CharFormat font{.FontName = "Courier New",
                          .FontSize = 11.5,
                          .Bold = true,
                          .Italic = true,
                          .Underline = true,
                          .StrikeThru = true,
                          .TextColor = 0xFFFFFF};
    writer.WriteFont(font);
    writer.Write("MainLeft", -0.25);
    writer.Write("Toolbar", true);
    writer.Write("Wordwrap", false);
    const EditorSettings read = LoadEditorSettings(settings, system);
    EXPECT_EQ(read.Font, font);
    EXPECT_EQ(read.MainLeft, -0.25);
    EXPECT_TRUE(read.Toolbar);
    EXPECT_FALSE(read.Wordwrap);
    EXPECT_EQ(settings.Sections, std::vector<std::string>(10, section));
    std::vector<std::string> keys;
    for (const RecordingSettings::Entry& entry : settings.Written) {
      keys.push_back(entry.first);
    }
    EXPECT_EQ(keys,
              (std::vector<std::string>{"Fontname", "FontSize", "Bold", "Italic", "StrikeThru",
                                        "Underline", "Color", "MainLeft", "Toolbar", "Wordwrap"}));
  }
}

}  // namespace
}  // namespace trelonit::test
