#include <QPushButton>
#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"

namespace trelonit::test {
namespace {

/// A text that does not belong into a box.
struct Input {
  std::string Name;
  std::string Text;
};

void PrintTo(const Input& input, std::ostream* stream) {
  *stream << input.Name;
}

const std::vector<Input> inputs{{"letters", "abc"}, {"negative", "-5"},
                                {"huge", "1e308"},  {"comma", "1,5"},
                                {"point", "1.5"},   {"long", std::string(5000, '9')},
                                {"empty", ""}};

/// A text box of the form by its name.
TextBox& BoxOf(frmMain& form, const std::string& name) {
  if (name == "txtLengthF") {
    return form.txtLengthF;
  }
  if (name == "txtHight") {
    return form.txtHight;
  }
  if (name == "txtLenOporn") {
    return form.txtLenOporn;
  }
  if (name == "txtForceVal") {
    return form.txtForceVal;
  }
  if (name == "txtRy") {
    return form.txtRy;
  }
  if (name == "txtUsloviyaRabot") {
    return form.txtUsloviyaRabot;
  }
  return form.txtNadegnost;
}

class BadInput : public ::testing::TestWithParam<Input> {
 protected:
  /// Types into a box, changes the tab, adds a load and calculates; the same by the form's own
  /// handlers gives the messages to expect.
  static void Check(const std::string& name, int tab) {
    const std::string& text = GetParam().Text;
    StartedDesk plain;
    plain.Main.chkProgib.SetChecked(true);
    plain.Main.tabMain.SetTab(static_cast<Integer>(tab));
    plain.TakeMessages();
    BoxOf(plain.Main, name).SetText(text);
    plain.Main.tabMain.SetTab(2);
    plain.Main.cmdAddForce_Click();
    plain.Main.FindMenuItem("mnuCalc").Click();

    Screen screen;
    screen.Press("chkProgib");
    screen.GoTo(tab);
    screen.TakeMessages();
    Paste(screen.Edit(name), text);
    EXPECT_EQ(BoxOf(screen.Main, name).Text(), text) << name;
    screen.GoTo(2);
    screen.Press("cmdAddForce");
    screen.MenuEntry("mnuCalc").trigger();

    EXPECT_EQ(screen.TakeMessages(), plain.TakeMessages()) << name;
    EXPECT_EQ(screen.Results.size(), plain.Results.size()) << name;
    EXPECT_EQ(screen.Tabs().currentIndex(), plain.Main.tabMain.Tab()) << name;
    screen.Window.grab();

    // And the window goes on.
    screen.GoTo(0);
    for (const char* geometry : {"txtLengthF", "txtHight", "txtLenOporn"}) {
      screen.TypeInto(geometry, std::string(geometry) == "txtLengthF" ? "20" : "1.5");
    }
    screen.GoTo(2);
    for (const char* number : {"txtRy", "txtUsloviyaRabot", "txtNadegnost"}) {
      screen.TypeInto(number, "1");
    }
    screen.Press("cmdClearLoads");
    screen.TakeMessages();
    const std::size_t before = screen.Results.size();
    screen.Press("cmdCalculate");
    EXPECT_EQ(screen.Results.size(), before + 1) << name;
    EXPECT_EQ(screen.TakeMessages(), Messages()) << name;
  }
};

TEST_P(BadInput, IntoTheGeometryIsTold) {
  for (const char* name : {"txtLengthF", "txtHight", "txtLenOporn"}) {
    Check(name, 0);
  }
}

TEST_P(BadInput, IntoTheLoadsIsTold) {
  Check("txtForceVal", 2);
}

TEST_P(BadInput, IntoTheMaterialIsTold) {
  for (const char* name : {"txtRy", "txtUsloviyaRabot", "txtNadegnost"}) {
    Check(name, 2);
  }
}

TEST_P(BadInput, IntoTheGapIsTold) {
  Screen screen;
  screen.GoTo(1);
  screen.Press("imgProfileSecSelect2");
  QLineEdit& gap = *screen.Combo("cmbGdist").lineEdit();
  Paste(gap, GetParam().Text);
  QTest::keyClick(&gap, Qt::Key_Return);
  const std::string& name = GetParam().Name;
  // The gap is read by the desktop's own conversion, which takes the locale's separator alone.
  const bool number = name == "negative" || name == "huge" || name == "point";
  EXPECT_EQ(screen.TakeMessages().empty(), number) << name;
  screen.GoTo(2);
  screen.Press("cmdCalculate");
  screen.TakeMessages();
  screen.GoTo(1);
  screen.PickIn("cmbGdist", "10");
  EXPECT_EQ(screen.Main.Model.Inputs.ElementSection[1].Gdist, 10);
  screen.GoTo(2);
  const std::size_t before = screen.Results.size();
  screen.Press("cmdCalculate");
  EXPECT_EQ(screen.Results.size(), before + 1);
  EXPECT_EQ(screen.TakeMessages(), Messages());
}

INSTANTIATE_TEST_SUITE_P(Texts, BadInput, ::testing::ValuesIn(inputs),
                         [](const auto& test) { return test.param.Name; });

TEST(BadGeometry, IsToldByItsMessage) {
  for (const char* box : {"txtLengthF", "txtHight"}) {
    for (const char* text : {"abc", "-5", ""}) {
      Screen screen;
      screen.TypeInto(box, text);
      screen.GoTo(2);
      EXPECT_EQ(screen.TakeMessages(), Messages{Stop(wrongGeometry)}) << box << ' ' << text;
      screen.MenuEntry("mnuCalc").trigger();
      EXPECT_EQ(screen.TakeMessages(), Messages{Stop(wrongGeometry)}) << box << ' ' << text;
      EXPECT_TRUE(screen.Results.empty());
    }
  }
}

/// The buttons of the tabs. One that opens a menu waits for the user's choice.
QList<QAbstractButton*> ButtonsOf(const QTabWidget& tabs) {
  QList<QAbstractButton*> buttons;
  for (QAbstractButton* button : tabs.findChildren<QAbstractButton*>()) {
    const auto* push = qobject_cast<QPushButton*>(button);
    if (push == nullptr || push->menu() == nullptr) {
      buttons.append(button);
    }
  }
  return buttons;
}

void PressEverything(const QWidget& window) {
  for (QAbstractButton* button : ButtonsOf(Find<QTabWidget>(window, "tabMain"))) {
    Click(*button);
  }
}

TEST(WorldWithoutACatalogue, StillGivesAUsableWindow) {
  Desk desk;
  desk.Resources.MissingBlocks = {102, 103};
  desk.Outside.Files.NoFileSystem = true;
  frmMain& form = desk.MakeAndLoad();
  EXPECT_FALSE(desk.TakeMessages().empty());
  MainWindow window(form, desk.Outside.Settings);
  window.CompleteTabs();
  window.show();
  auto& tabs = Find<QTabWidget>(window, "tabMain");
  for (int tab : {1, 2, 0, 2}) {
    ClickTab(tabs, tab);
    EXPECT_EQ(tabs.currentIndex(), tab);
    window.grab();
  }
  PressEverything(window);
  window.findChild<QAction*>("mnuCalc")->trigger();
  desk.TakeMessages();
  Type(Find<QLineEdit>(window, "txtHight"), "2.5");
  EXPECT_EQ(form.txtHight.Text(), "2.5");
  EXPECT_TRUE(window.isVisible());
}

TEST(WorldWithoutPictures, StillGivesAUsableWindow) {
  Desk desk;
  desk.Resources.MissingBitmaps = {101, 102, 103, 104, 105, 309, 310};
  desk.Resources.MissingIcons = {102, 103};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), Messages{BitmapTail("Form_Load", 101)});
  MainWindow window(form, desk.Outside.Settings);
  window.CompleteTabs();
  window.show();
  PressEverything(window);
  window.grab();
  EXPECT_TRUE(window.isVisible());
}

TEST(RandomPresses, NeitherStopTheWindowNorItsForm) {
  Screen screen;
  unsigned int seed = 20261121;
  const auto next = [&](std::size_t count) {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<std::size_t>(seed >> 8U) % count;
  };
  const auto buttons = ButtonsOf(screen.Tabs());
  const auto combos = screen.Tabs().findChildren<QComboBox*>();
  for (int press = 0; press < 250; ++press) {
    screen.GoTo(static_cast<int>(next(3)));
    QAbstractButton& button =
        *buttons[static_cast<qsizetype>(next(static_cast<std::size_t>(buttons.size())))];
    Click(button);
    QComboBox& combo =
        *combos[static_cast<qsizetype>(next(static_cast<std::size_t>(combos.size())))];
    if (combo.isVisible() && combo.isEnabled() && combo.count() > 0) {
      PickEntry(combo, static_cast<int>(next(static_cast<std::size_t>(combo.count()))));
    }
    // What the widgets show is what the form has.
    ASSERT_EQ(screen.Tabs().currentIndex(), screen.Main.tabMain.Tab());
    ASSERT_EQ(Entries(screen.Combo("cmbKnotNum")), screen.Main.cmbKnotNum.List());
    ASSERT_EQ(FromQt(screen.Combo("cmbSectType").currentText()), screen.Main.cmbSectType.Text());
    ASSERT_EQ(screen.Button("tglUpPoyas").isChecked(), screen.Main.tglUpPoyas.Value());
    ASSERT_NE(screen.Main.tglUpPoyas.Value(), screen.Main.tglDwnPoyas.Value());
    ASSERT_NE(screen.Main.imgPForce.Marked(), screen.Main.imgDistForce.Marked());
  }
  EXPECT_TRUE(screen.Window.isVisible());
}

}  // namespace
}  // namespace trelonit::test
