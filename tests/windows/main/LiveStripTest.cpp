// The strip below the tabs that follows what is being entered.

#include <QHelpEvent>
#include <QMenuBar>
#include <QToolTip>
#include <gtest/gtest.h>

#include "tests/windows/Pixels.h"
#include "tests/windows/main/Screen.h"
#include "windows/binding/Pictures.h"
#include "windows/main/LiveStrip.h"

namespace trelonit::test {
namespace {

class LiveStripOfTheWindow : public ::testing::Test, public Screen {
 protected:
  LiveStrip& Strip() { return Find<LiveStrip>(Window, "LiveStrip"); }
  /// Waits until the strip shows what holds.
  bool Shows(const std::function<bool(const LiveResult&)>& condition) {
    return QTest::qWaitFor([&] { return condition(Strip().Shown()); }, 2000);
  }
  bool ShowsAResult() {
    return Shows([](const LiveResult& result) { return !result.Groups.empty(); });
  }
};

TEST_F(LiveStripOfTheWindow, ComesAfterTheFirstPaintAndStandsOnEveryTab) {
  EXPECT_TRUE(Strip().Shown().Groups.empty());
  EXPECT_FALSE(Strip().Shown().HasRefused());
  EXPECT_TRUE(ShowsAResult());
  for (int tab = 0; tab < 3; ++tab) {
    GoTo(tab);
    EXPECT_TRUE(Strip().isVisible()) << tab;
    EXPECT_GE(Strip().geometry().top(), Tabs().geometry().bottom()) << tab;
  }
}

TEST_F(LiveStripOfTheWindow, FollowsTheLastKeyOfAnInput) {
  ASSERT_TRUE(ShowsAResult());
  const std::string before = Strip().Shown().Figures[0].Value;
  QLineEdit& span = Edit("txtLengthF");
  span.setFocus();
  QTest::keyClicks(&span, "0");
  EXPECT_EQ(Strip().Shown().Figures[0].Value, before) << "not before the pause";
  EXPECT_TRUE(Shows([&](const LiveResult& result) { return result.Figures[0].Value != before; }));
  EXPECT_EQ(Strip().Shown().Figures[0].Value, Main.CalculateLive().Figures[0].Value);
}

TEST_F(LiveStripOfTheWindow, LosesNoKeyOfFastTyping) {
  QLineEdit& span = Edit("txtLengthF");
  span.setFocus();
  Empty(span);
  // 30 keys a second.
  std::string typed;
  for (int key = 0; key < 30; ++key) {
    const char digit = static_cast<char>('1' + key % 9);
    typed += digit;
    QTest::keyClick(&span, digit);
    QTest::qWait(33);
  }
  EXPECT_EQ(FromQt(span.text()), typed);
  EXPECT_EQ(Main.txtLengthF.Text(), typed);
}

TEST_F(LiveStripOfTheWindow, FollowsLoadsAndSections) {
  ASSERT_TRUE(ShowsAResult());
  const double unloaded = Strip().Shown().Groups[0].Told;
  GoTo(2);
  Press("imgPForce");
  PickIn("cmbKnotNum", "5");
  TypeInto("txtForceVal", "40");
  Press("cmdAddForce");
  EXPECT_TRUE(Shows([&](const LiveResult& result) { return result.Groups[0].Told > unloaded; }));
  const double light = Strip().Shown().Groups[0].Told;
  GoTo(1);
  PickIn("cmbSectType", SizeName(Main, 1, 20));
  EXPECT_TRUE(Shows([&](const LiveResult& result) { return result.Groups[0].Told < light; }));
}

TEST_F(LiveStripOfTheWindow, TellsNothingAndLeavesTheResultsAlone) {
  TypeInto("txtLengthF", "abc");
  EXPECT_TRUE(Shows([](const LiveResult& result) { return result.HasRefused(); }));
  EXPECT_EQ(TakeMessages(), Messages());
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_TRUE(Results.empty());
  EXPECT_EQ(Main.Model.Last.TreloResult.KnotNum, 0);
}

TEST_F(LiveStripOfTheWindow, IsGreyWithTheReasonWhereThereIsNoResult) {
  TypeInto("txtHight", "0");
  ASSERT_TRUE(Shows([](const LiveResult& result) { return result.HasRefused(); }));
  EXPECT_EQ(FromQt(Strip().accessibleDescription()), "Высота фермы должна быть числом больше нуля");
  EXPECT_GT(CountPixels(Strip(), AsideColor(Strip().palette())), 20);
  EXPECT_EQ(CountPixels(Strip(), PassedColor(Strip().palette())), 0);
  EXPECT_EQ(CountPixels(Strip(), WarningColor(Strip().palette())), 0);
}

TEST_F(LiveStripOfTheWindow, PaintsWhatFailsRedAndWhatPassesGreen) {
  GoTo(1);
  // The largest size of the first standard, for all groups, without loads.
  for (int option = 1; option <= 5; ++option) {
    Press("optElementSection" + std::to_string(option));
    QComboBox& sizes = Combo("cmbSectType");
    PickEntry(sizes, sizes.count() - 1);
  }
  ASSERT_TRUE(Shows([](const LiveResult& result) {
    return !result.Groups.empty() &&
           std::none_of(result.Groups.begin(), result.Groups.end(),
                        [](const LiveGroup& group) { return group.Fails(); });
  }));
  EXPECT_GT(CountPixels(Strip(), PassedColor(Strip().palette())), 100);
  EXPECT_EQ(CountPixels(Strip(), WarningColor(Strip().palette())), 0);
  PickEntry(Combo("cmbSectType"), 0);
  ASSERT_TRUE(Shows([](const LiveResult& result) {
    return std::any_of(result.Groups.begin(), result.Groups.end(),
                       [](const LiveGroup& group) { return group.Fails(); });
  }));
  EXPECT_GT(CountPixels(Strip(), WarningColor(Strip().palette())), 100);
}

TEST_F(LiveStripOfTheWindow, HasAHintForEveryGroupAndFigure) {
  ASSERT_TRUE(ShowsAResult());
  std::vector<std::string> hints;
  for (int x = 5; x < Strip().width(); x += 5) {
    const QPoint point(x, 10);
    QHelpEvent help(QEvent::ToolTip, point, Strip().mapToGlobal(point));
    QApplication::sendEvent(&Strip(), &help);
    const std::string hint = FromQt(QToolTip::text());
    if (!hint.empty() && (hints.empty() || hints.back() != hint)) {
      hints.push_back(hint);
    }
  }
  std::vector<std::string> expected;
  for (const LiveGroup& group : Strip().Shown().Groups) {
    expected.push_back(group.Hint);
  }
  for (const LiveFigure& figure : Strip().Shown().Figures) {
    expected.push_back(figure.Hint);
  }
  EXPECT_EQ(hints, expected);
}

TEST_F(LiveStripOfTheWindow, IsReadAloud) {
  ASSERT_TRUE(ShowsAResult());
  const std::string words = FromQt(Strip().accessibleDescription());
  EXPECT_EQ(words, Strip().Shown().InWords());
  for (const char* part : {"Верхний пояс", "Опорные раскосы", "Масса: ", "Прогиб: "}) {
    EXPECT_NE(words.find(part), std::string::npos) << part;
  }
}

TEST_F(LiveStripOfTheWindow, TakesNoRoomFromASmallScreen) {
  EXPECT_LE(Strip().sizeHint().height(), 50);
  EXPECT_LE(Window.minimumSizeHint().height(), 720);
}

TEST_F(LiveStripOfTheWindow, IsHiddenByTheMenuAndThenCalculatesNothing) {
  ASSERT_TRUE(ShowsAResult());
  QAction& entry = MenuEntry("mnuLiveStrip");
  EXPECT_TRUE(entry.isChecked());
  entry.trigger();
  EXPECT_FALSE(Strip().isVisible());
  const std::string mass = Strip().Shown().Figures[0].Value;
  TypeInto("txtLengthF", "60");
  QTest::qWait(4 * LiveStrip::pause);
  EXPECT_EQ(Strip().Shown().Figures[0].Value, mass);
  entry.trigger();
  EXPECT_TRUE(Strip().isVisible());
  EXPECT_TRUE(Shows([&](const LiveResult& result) { return result.Figures[0].Value != mass; }));
}

TEST(LiveStripSettings, AreKeptUntilTheNextStart) {
  Desk desk;
  frmMain& form = desk.MakeAndLoad();
  const auto visible = [&] {
    MainWindow window(form, desk.Outside.Settings);
    window.show();
    const bool shown = Find<LiveStrip>(window, "LiveStrip").isVisible();
    window.findChild<QAction*>(QStringLiteral("mnuLiveStrip"))->trigger();
    return shown;
  };
  EXPECT_TRUE(visible());
  EXPECT_FALSE(visible());
  EXPECT_TRUE(visible());
  desk.Outside.Settings.Set("Window", "LiveStrip", "nonsense");
  EXPECT_TRUE(visible());
}

}  // namespace
}  // namespace trelonit::test
