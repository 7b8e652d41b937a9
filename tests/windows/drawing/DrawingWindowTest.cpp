#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "tests/drawinghost/HostDesk.h"
#include "tests/windows/Modal.h"
#include "tests/windows/drawing/DrawingScreen.h"
#include "windows/drawing/DrawingWindow.h"

namespace trelonit::test {
namespace {

TEST_F(DrawingWindowOnScreen, HasATabForEachDrawingTheLastInFront) {
  ASSERT_EQ(Tabs().count(), 2);
  EXPECT_EQ(FromQt(Tabs().tabText(0)), "Drawing1.dwg");
  EXPECT_EQ(FromQt(Tabs().tabText(1)), "Drawing2.dwg");
  EXPECT_EQ(View().Shown(), Second);
  EXPECT_EQ(FromQt(Window.windowTitle()), "Чертеж - Drawing2.dwg");
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(DrawingWindowOnScreen, TakesADrawingOnce) {
  Window.Add(First);
  Window.Add(nullptr);
  EXPECT_EQ(Tabs().count(), 2);
}

TEST_F(DrawingWindowOnScreen, TellsWhichDrawingTheUserBringsToTheFront) {
  std::shared_ptr<Drawing> told;
  Window.Activated = [&](const auto& drawing) { told = drawing; };
  ClickTab(Tabs(), 0);
  EXPECT_EQ(told, First);
  EXPECT_EQ(FromQt(Window.windowTitle()), "Чертеж - Drawing1.dwg");
  Window.Activate(Second);
  EXPECT_EQ(View().Shown(), Second);
}

TEST_F(DrawingWindowOnScreen, HasTheMenusWithTheirKeys) {
  Texts entries;
  for (const QAction* menu : Window.menuBar()->actions()) {
    entries.push_back(FromQt(menu->text().remove(QLatin1Char('&'))));
    for (const QAction* entry : menu->menu()->actions()) {
      entries.push_back(FromQt(entry->text().remove(QLatin1Char('&'))) +
                        (entry->shortcut().isEmpty() ? std::string()
                                                     : "|" + FromQt(entry->shortcut().toString())));
    }
  }
  EXPECT_EQ(entries, (Texts{"Файл", "Сохранить как DXF...|Ctrl+S", "Экспорт в SVG...",
                            "Экспорт в PDF...", "Экспорт в PNG...", "", "Формат листа",
                            "Основная надпись...", "Печать...|Ctrl+P", "", "Закрыть|Ctrl+W", "Вид",
                            "Показать всё\tHome", "Увеличить\t+", "Уменьшить\t-"}));
}

TEST_F(DrawingWindowOnScreen, HasAPictureAndAHintOnEveryToolButton) {
  const auto* bar = Window.findChild<QToolBar*>();
  ASSERT_NE(bar, nullptr);
  int buttons = 0;
  for (const QAction* action : bar->actions()) {
    if (action->isSeparator()) {
      continue;
    }
    ++buttons;
    EXPECT_FALSE(action->toolTip().isEmpty());
    const QImage picture = action->icon().pixmap(24, 24).toImage();
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        ink += qAlpha(picture.pixel(x, y)) > 0 ? 1 : 0;
      }
    }
    EXPECT_GT(ink, 20) << FromQt(action->text());
  }
  EXPECT_EQ(buttons, 8);
}

TEST_F(DrawingWindowOnScreen, ZoomsByTheMenuView) {
  const double all = View().ScaleOnScreen();
  Entry("ZoomIn").trigger();
  EXPECT_NEAR(View().ScaleOnScreen(), all / 1.25, 1e-9);
  Entry("ZoomOut").trigger();
  Entry("ZoomOut").trigger();
  EXPECT_NEAR(View().ScaleOnScreen(), all * 1.25, 1e-9);
  Entry("ShowAll").trigger();
  EXPECT_NEAR(View().ScaleOnScreen(), all, 1e-9);
}

TEST_F(DrawingWindowOnScreen, ListsTheLayersWithTheirWeights) {
  ASSERT_EQ(Layers().topLevelItemCount(), 3);
  const auto row = [&](int place) {
    const QTreeWidgetItem& item = *Layers().topLevelItem(place);
    return FromQt(item.text(0) + "|" + item.text(1)) +
           (item.checkState(0) == Qt::Checked ? "|on" : "|off");
  };
  EXPECT_EQ(row(0), "0|0,25|on");
  EXPECT_EQ(row(1), "Main|0,50|on");
  EXPECT_EQ(row(2), "Dimension|0,13|on");
}

TEST_F(DrawingWindowOnScreen, SwitchesTheLayersOfTheDrawingInFront) {
  const QImage before = View().grab().toImage();
  QTreeWidgetItem& main = *Layers().topLevelItem(1);
  // By hand: the box stands at the left end of its row.
  const QRect row = Layers().visualItemRect(&main);
  QTest::mouseClick(Layers().viewport(), Qt::LeftButton, {}, {10, row.center().y()});
  EXPECT_EQ(main.checkState(0), Qt::Unchecked);
  EXPECT_FALSE(Second->Layers[1].LayerOn);
  EXPECT_TRUE(First->Layers[1].LayerOn);
  EXPECT_NE(View().grab().toImage(), before);
  ClickTab(Tabs(), 0);
  EXPECT_EQ(Layers().topLevelItem(1)->checkState(0), Qt::Checked);
  ClickTab(Tabs(), 1);
  EXPECT_EQ(Layers().topLevelItem(1)->checkState(0), Qt::Unchecked);
  Layers().topLevelItem(1)->setCheckState(0, Qt::Checked);
  EXPECT_TRUE(Second->Layers[1].LayerOn);
  EXPECT_EQ(View().grab().toImage(), before);
}

TEST_F(DrawingWindowOnScreen, ThawsAFrozenLayerThatIsSwitchedOn) {
  Second->Layers[1].Freeze = true;
  Window.Renew(Second);
  QTest::qWait(10);
  EXPECT_EQ(Layers().topLevelItem(1)->checkState(0), Qt::Unchecked);
  Layers().topLevelItem(1)->setCheckState(0, Qt::Checked);
  EXPECT_TRUE(IsShown(*Second, "Main"));
}

TEST_F(DrawingWindowOnScreen, TellsPointerScaleAndSheet) {
  EXPECT_EQ(Says("Pointer"), "");
  const QPoint place = View().ToView({5000, 1000}).toPoint();
  QMouseEvent move(QEvent::MouseMove, place, View().mapToGlobal(QPointF(place)), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&View(), &move);
  const QLocale russian(QLocale::Russian);
  const QPointF point = View().ToDrawing(place);
  EXPECT_EQ(Says("Pointer"), FromQt("X = " + russian.toString(point.x(), 'f', 0) +
                                    " мм   Y = " + russian.toString(point.y(), 'f', 0) + " мм"));
  EXPECT_EQ(Says("Scale"),
            FromQt("На экране 1:" + russian.toString(View().ScaleOnScreen(), 'f', 0)));
  Entry("ZoomIn").trigger();
  EXPECT_EQ(Says("Scale"),
            FromQt("На экране 1:" + russian.toString(View().ScaleOnScreen(), 'f', 0)));
  EXPECT_EQ(Says("Sheet"), "Лист A4, М 1:40");
}

TEST_F(DrawingWindowOnScreen, ClosesDrawingByDrawingAndItselfWithTheLast) {
  QTest::keyClick(&View(), Qt::Key_W, Qt::ControlModifier);
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(View().Shown(), First);
  EXPECT_EQ(FromQt(Window.windowTitle()), "Чертеж - Drawing1.dwg");
  EXPECT_TRUE(Window.isVisible());
  Entry("Close").trigger();
  EXPECT_EQ(Tabs().count(), 0);
  EXPECT_FALSE(Window.isVisible());
  EXPECT_FALSE(Entry("SaveDxf").isEnabled());
}

TEST_F(DrawingWindowOnScreen, AsksItsOwnerToCloseADrawing) {
  std::shared_ptr<Drawing> asked;
  Window.CloseAsked = [&](const auto& drawing) { asked = drawing; };
  emit Tabs().tabCloseRequested(0);
  EXPECT_EQ(asked, First);
  EXPECT_EQ(Tabs().count(), 2);
  Window.Remove(First);
  EXPECT_EQ(Tabs().count(), 1);
}

TEST_F(DrawingWindowOnScreen, LeavesDrawingsAloneThatItDoesNotHave) {
  const std::shared_ptr<Drawing> stranger = SmallDrawing("Drawing3.dwg");
  Window.Remove(stranger);
  Window.Activate(stranger);
  Window.Renew(stranger);
  Window.ZoomExtents(stranger);
  EXPECT_EQ(Tabs().count(), 2);
  EXPECT_EQ(View().Shown(), Second);
}

TEST_F(DrawingWindowOnScreen, ShowsWhatWasChanged) {
  const QImage before = View().grab().toImage();
  Second->ModelSpace.push_back(LineOn("Main", {0, 0}, {10000, 300}));
  Second->Layers.push_back({.Name = "Grid", .Lineweight = 25});
  Window.Renew(Second);
  QTest::qWait(10);
  EXPECT_NE(View().grab().toImage(), before);
  EXPECT_EQ(Layers().topLevelItemCount(), 4);
}

TEST_F(DrawingWindowOnScreen, ShowsAllOfADrawingOnDemand) {
  const double all = View().ScaleOnScreen();
  View().ZoomBy(7);
  Window.ZoomExtents(First);
  EXPECT_NE(View().ScaleOnScreen(), all);
  Window.ZoomExtents(Second);
  EXPECT_NEAR(View().ScaleOnScreen(), all, 1e-9);
}

TEST_F(DrawingWindowOnScreen, HasANameForEveryInput) {
  ExpectEveryInputHasAName(Window);
}

TEST(DrawingWindow, ShownModallyWaitsForItsEnd) {
  DrawingWindow window;
  window.Add(SmallDrawing());
  bool seen = false;
  const OnceModal<DrawingWindow> user([&](DrawingWindow& modal) {
    seen = &modal == &window && window.isVisible();
    window.close();
    EXPECT_FALSE(window.isVisible());
  });
  window.ShowModal();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(window.isVisible());
}

TEST(DrawingWindowOnASmallScreen, IsNeverLargerThanTheScreen) {
  DrawingWindow window;
  window.show();
  const QSize room = window.screen()->availableSize();
  if (room.width() >= 1100) {
    GTEST_SKIP() << "this screen has room for the usual size";
  }
  EXPECT_LE(window.frameGeometry().width(), room.width());
  EXPECT_LE(window.frameGeometry().height(), room.height());
}

TEST(DrawingWindowWithCrowdedTexts, OffersALargerSheet) {
  DrawingWindow window;
  const std::shared_ptr<Drawing> drawing = CrowdedDrawing(1);
  window.Add(drawing);
  window.show();
  const auto says = [&](const std::string& label) { return Find<QLabel>(window, label).text(); };
  // The sheet that is chosen by itself has room for all.
  EXPECT_EQ(says("Crowded"), QString());
  const QString chosen = says("Sheet").section(QLatin1Char(','), 0, 0).section(QLatin1Char(' '), 1);
  Find<QAction>(window, "PaperA4").trigger();
  EXPECT_TRUE(says("Crowded").startsWith(QStringLiteral("Не поместилось надписей: ")));
  EXPECT_TRUE(says("Crowded").endsWith(QStringLiteral("все помещаются на ") + chosen))
      << FromQt(says("Crowded"));
  Find<QAction>(window, ("Paper" + FromQt(chosen))).trigger();
  EXPECT_EQ(says("Crowded"), QString());
}

TEST(DrawingWindowWithATitleBlock, AsksForItAndRemembers) {
  MemorySettings settings;
  {
    DrawingWindow window(nullptr, &settings);
    window.Add(SmallDrawing());
    ShowActive(window);
    const QString sheet = Find<QLabel>(window, "Sheet").text();
    const OnceModal<QDialog> once([](QDialog& dialog) {
      EXPECT_EQ(FromQt(dialog.windowTitle()), "Основная надпись");
      ExpectEveryInputHasAName(dialog);
      EXPECT_FALSE(Find<QAbstractButton>(dialog, "Shown").isChecked());
      EXPECT_EQ(FromQt(Find<QLineEdit>(dialog, "Stage").text()), "Р");
      Type(Find<QLineEdit>(dialog, "Author"), "Иванов");
      // Who fills it wants it.
      EXPECT_TRUE(Find<QAbstractButton>(dialog, "Shown").isChecked());
      Click(Find<QAbstractButton>(dialog, "Today"));
      EXPECT_EQ(Find<QLineEdit>(dialog, "Date").text().size(), 8);
      Click(StandardButton(dialog, QDialogButtonBox::Ok));
    });
    Find<QAction>(window, "TitleBlock").trigger();
    EXPECT_TRUE(once.Acted());
  }
  EXPECT_TRUE(LoadTitleBlock(settings).Shown);
  EXPECT_EQ(LoadTitleBlock(settings).Block.Author, "Иванов");
  DrawingWindow window(nullptr, &settings);
  window.Add(SmallDrawing());
  const OnceModal<QDialog> once([](QDialog& dialog) {
    EXPECT_EQ(FromQt(Find<QLineEdit>(dialog, "Author").text()), "Иванов");
    Type(Find<QLineEdit>(dialog, "Author"), "Петров");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Find<QAction>(window, "TitleBlock").trigger();
  EXPECT_TRUE(once.Acted());
  EXPECT_EQ(LoadTitleBlock(settings).Block.Author, "Иванов");
}

}  // namespace
}  // namespace trelonit::test
