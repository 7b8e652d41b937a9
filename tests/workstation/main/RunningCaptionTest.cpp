#include <gtest/gtest.h>

#include "platform/text/Text.h"
#include "tests/workstation/main/Desk.h"
#include "workstation/main/RunningCaption.h"

namespace trelonit::test {
namespace {

/// A text of this many characters, no two of which are alike.
std::u32string Alphabet(std::size_t length) {
  std::u32string text;
  for (std::size_t place = 0; place < length; ++place) {
    text.push_back(static_cast<char32_t>(U'Ѐ' + place));
  }
  return text;
}

/// What runs in the caption at each of the first ticks.
class Caption {
 public:
  explicit Caption(const std::u32string& text) : text_(Utf8(text)) {}

  /// The window that stands between the marks at this tick, counted from 1.
  std::u32string At(int tick) {
    std::string caption;
    while (tick_ < tick) {
      caption = caption_.Next("title", text_);
      ++tick_;
    }
    const std::string before = "title *** ";
    const std::string after = " *** ";
    EXPECT_EQ(caption.substr(0, before.size()), before);
    EXPECT_EQ(caption.substr(caption.size() - after.size()), after);
    return Characters(caption.substr(before.size(), caption.size() - before.size() - after.size()));
  }

 private:
  std::string text_;
  RunningCaption caption_;
  int tick_ = 0;
};

TEST(RunningCaption, ShowsSixtyCharactersFromTheCounterOn) {
  const std::u32string text = Alphabet(100);
  Caption caption(text);
  EXPECT_EQ(caption.At(1), text.substr(0, 60));
  EXPECT_EQ(caption.At(2), text.substr(1, 60));
  EXPECT_EQ(caption.At(40), text.substr(39, 60));
  EXPECT_EQ(caption.At(41), text.substr(40, 60));
}

TEST(RunningCaption, JoinsTheEndToTheBeginning) {
  const std::u32string text = Alphabet(100);
  Caption caption(text);
  EXPECT_EQ(caption.At(42), text.substr(41, 59) + text.substr(0, 1));
  EXPECT_EQ(caption.At(71), text.substr(70, 30) + text.substr(0, 30));
  EXPECT_EQ(caption.At(100), text.substr(99, 1) + text.substr(0, 59));
}

TEST(RunningCaption, StartsOverWithOneCharacterMore) {
  const std::u32string text = Alphabet(100);
  Caption caption(text);
  EXPECT_EQ(caption.At(101), text.substr(0, 61));
  // The counter stands at 1 by then.
  EXPECT_EQ(caption.At(102), text.substr(1, 60));
  EXPECT_EQ(caption.At(200), text.substr(99, 1) + text.substr(0, 59));
  EXPECT_EQ(caption.At(201), text.substr(0, 61));
}

TEST(RunningCaption, FillsItsWindowWithAShortTextAsFarAsThatGoes) {
  const std::u32string text = Alphabet(10);
  Caption caption(text);
  EXPECT_EQ(caption.At(1), text + text);
  EXPECT_EQ(caption.At(4), text.substr(3) + text);
  EXPECT_EQ(caption.At(11), text);
  EXPECT_EQ(Caption(U"").At(3), U"");
}

/// The text that runs, as the ticks of one round show it.
std::string RunningText(Desk& desk, frmMain& form) {
  const std::string title = "Трелонит v 1.0.0 *** ";
  form.tmrRuningString_Timer();
  std::u32string text = Characters(form.Form.Caption().substr(title.size()));
  EXPECT_EQ(form.Form.Caption().substr(0, title.size()), title);
  text.resize(60);
  for (int tick = 0; tick < 60; ++tick) {
    form.tmrRuningString_Timer();
    const std::u32string window = Characters(form.Form.Caption().substr(title.size()));
    text.push_back(window[59]);
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
  return Utf8(text);
}

constexpr const char* about = "Считает фермы.";

TEST(MainCaption, TellsPurposeUserAndComputer) {
  StartedDesk desk;
  desk.Resources.About = about;
  desk.Outside.Shell.User = "Иванов";
  desk.Outside.Shell.Computer = "PC-1";
  const std::string whole =
      "  Считает фермы.  Имя текущего пользователя - Иванов / CPU name - PC-1           ";
  const std::string text = RunningText(desk, desk.Main);
  EXPECT_EQ(text.substr(0, whole.size()), whole);
  // The gap before the next round is that of the text's own eleven blanks.
  EXPECT_EQ(text.substr(whole.size(), std::string("  Считает").size()), "  Считает");
}

TEST(MainCaption, NamesNoComputerThatDoesNotTellItsName) {
  StartedDesk desk;
  desk.Resources.About = about;
  desk.Outside.Shell.Computer.reset();
  EXPECT_NE(RunningText(desk, desk.Main).find(" / CPU name - noname           "),
            std::string::npos);
}

TEST(MainCaption, CutsALongUserName) {
  StartedDesk desk;
  desk.Resources.About = about;
  desk.Outside.Shell.User = "абвгдежзийклмнопрстуфхцчшщъыь";
  EXPECT_NE(RunningText(desk, desk.Main).find(" - абвгдежзийклмнопрстуфхцчш / CPU"),
            std::string::npos);
}

TEST(MainCaption, CutsTheUserNameAtACharacterZero) {
  StartedDesk desk;
  desk.Resources.About = about;
  desk.Outside.Shell.User = std::string("user\0rest", 9);
  EXPECT_NE(RunningText(desk, desk.Main).find(" - user / CPU"), std::string::npos);
}

TEST(MainCaption, ReadsTheNamesOnEveryTick) {
  StartedDesk desk;
  desk.Resources.About = "";
  desk.Main.tmrRuningString_Timer();
  EXPECT_NE(desk.Main.Form.Caption().find("- user / CPU name - computer"), std::string::npos);
  desk.Outside.Shell.User = "другой";
  desk.Outside.Shell.Computer = "PC-2";
  desk.Main.tmrRuningString_Timer();
  EXPECT_NE(desk.Main.Form.Caption().find("- другой / CPU name - PC-2"), std::string::npos);
}

TEST(MainCaption, BringsTheProgramsOwnSentence) {
  StartedDesk desk;
  desk.Main.tmrRuningString_Timer();
  EXPECT_EQ(desk.Main.Form.Caption(),
            "Трелонит v 1.0.0 ***   " + Utf8(Characters(desk.Resources.String(101)).substr(0, 58)) +
                " *** ");
}

TEST(MainCaption, StaysAsItIsWithoutTheSentence) {
  StartedDesk desk;
  desk.Main.tmrRuningString_Timer();
  const std::string before = desk.Main.Form.Caption();
  desk.Resources.MissingStrings = {101};
  EXPECT_NO_THROW(desk.Main.tmrRuningString_Timer());
  EXPECT_EQ(desk.Main.Form.Caption(), before);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

}  // namespace
}  // namespace trelonit::test
