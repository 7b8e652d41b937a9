// The composed section beside the inputs of the sections, its copies, the search of a size.

#include <QCompleter>
#include <QPushButton>
#include <gtest/gtest.h>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/main/Screen.h"
#include "windows/binding/Pictures.h"
#include "windows/main/SectionFigure.h"

namespace trelonit::test {
namespace {

class SectionPanelOfTab : public ::testing::Test, public Screen {
 protected:
  SectionPanelOfTab() { GoTo(1); }
  QWidget& Figure() { return Find<QWidget>(Window, "SectionFigure"); }
  std::string Facts() {
    QTest::qWait(1);
    QTextDocument plain;
    plain.setHtml(Find<QLabel>(Window, "SectionFacts").text());
    return FromQt(plain.toPlainText());
  }
  bool Says(const std::string& text) { return Facts().find(text) != std::string::npos; }
  /// The picture of the section as it is painted now.
  QImage Painted() {
    QTest::qWait(1);
    return Figure().grab().toImage();
  }
  QLineEdit& Search() { return Edit("txtFindSize"); }
  void TypeSearch(const std::string& text) {
    Search().setFocus();
    Empty(Search());
    QTest::keyClicks(&Search(), ToQt(text));
  }
  /// The entries of the menu of the copies as it opens.
  QMenu& CopyMenu() {
    QMenu* menu = Find<QPushButton>(Window, "cmdCopySection").menu();
    emit menu->aboutToShow();
    return *menu;
  }
};

TEST_F(SectionPanelOfTab, ShowsTheSectionAndItsFigures) {
  EXPECT_GT(CountPixels(Figure(), SteelColor(Figure().palette())), 500);
  // L25x16x3: 1.16 cm2.
  EXPECT_TRUE(Says("1.16 см²")) << Facts();
  EXPECT_TRUE(Says("0.91 кг/м")) << Facts();
  EXPECT_TRUE(Says("Вся группа"));
  EXPECT_EQ(FromQt(Figure().accessibleName()), "Верхний пояс: сечение в масштабе");
}

TEST_F(SectionPanelOfTab, FollowsEveryChoice) {
  std::vector<QImage> seen{Painted()};
  const auto other = [&] {
    seen.push_back(Painted());
    return std::count(seen.begin(), seen.end(), seen.back()) == 1;
  };
  Press("imgProfileSecSelect2");
  EXPECT_TRUE(other());
  PickIn("cmbSectType", "L100x63x6");
  EXPECT_TRUE(other());
  PickIn("cmbGdist", "20");
  EXPECT_TRUE(other());
  Press("imgProfileSecSelect11");
  EXPECT_TRUE(other());
  Press("optElementSection2");
  EXPECT_FALSE(other()) << "the lower chord has what the upper one began with";
  EXPECT_EQ(FromQt(Figure().accessibleName()), "Нижний пояс: сечение в масштабе");
}

TEST_F(SectionPanelOfTab, FollowsTheSizesOfTheOtherTab) {
  EXPECT_TRUE(Says("20.00 м"));
  GoTo(0);
  TypeInto("txtLengthF", "30");
  GoTo(1);
  EXPECT_TRUE(Says("30.00 м")) << Facts();
}

TEST_F(SectionPanelOfTab, SaysThatThereIsNoSection) {
  const int before = CountPixels(Figure(), SteelColor(Figure().palette()));
  Main.Model.Inputs.ElementSection[sectionUpPoyas].Profile.t = 500;
  Main.SectionChanged();
  QTest::qWait(1);
  EXPECT_GT(before, 0);
  EXPECT_EQ(CountPixels(Figure(), SteelColor(Figure().palette())), 0);
  EXPECT_GT(CountColors(Figure()), 1U) << "words instead";
}

TEST_F(SectionPanelOfTab, CopiesTheSectionToOneGroupOrToAll) {
  Press("imgProfileSecSelect5");
  Texts entries;
  for (const QAction* action : CopyMenu().actions()) {
    entries.push_back(FromQt(action->text()));
  }
  EXPECT_EQ(entries, (Texts{"Нижний пояс", "Раскосы", "Стойки", "Опорные раскосы", "",
                            "Все остальные группы"}));
  CopyMenu().actions()[2]->trigger();
  EXPECT_EQ(Main.lblProfilName[optionStoyka].Caption(), "Шв5П");
  EXPECT_EQ(Main.lblProfilName[optionRaskos].Caption(), "L25x16x3");
  CopyMenu().actions().back()->trigger();
  for (Long option = 1; option <= groupCount; ++option) {
    EXPECT_EQ(Main.lblProfilName[option].Caption(), "Шв5П") << option;
  }
}

TEST_F(SectionPanelOfTab, TakesTheFirstSizeThatIsFoundWithEnter) {
  TypeSearch("100x63x8");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_EQ(FromQt(Combo("cmbSectType").currentText()), "L100x63x8");
  EXPECT_EQ(Main.lblProfilName[optionUpPoyas].Caption(), "L100x63x8");
  EXPECT_EQ(FromQt(Search().text()), "");
}

TEST_F(SectionPanelOfTab, OffersWhatItFindsAndTakesWhatIsChosen) {
  TypeSearch("63");
  QAbstractItemModel* offered = Search().completer()->completionModel();
  ASSERT_GT(offered->rowCount(), 4);
  EXPECT_EQ(FromQt(offered->index(0, 0).data().toString()), "L63x40x4");
  emit Search().completer()->activated(QStringLiteral("L100x63x10"));
  QTest::qWait(1);
  EXPECT_EQ(Main.lblProfilName[optionUpPoyas].Caption(), "L100x63x10");
  EXPECT_EQ(FromQt(Search().text()), "");
}

TEST_F(SectionPanelOfTab, LeavesTheSizeAloneWhereNothingIsFound) {
  TypeSearch("999");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_EQ(Main.lblProfilName[optionUpPoyas].Caption(), "L25x16x3");
  EXPECT_EQ(FromQt(Search().text()), "999");
  EXPECT_TRUE(TakeMessages().empty());
}

TEST(SectionFigures, ArePaintedForEveryLayoutInEveryRoom) {
  StartedDesk desk;
  for (Long layout = 1; layout <= 11; ++layout) {
    desk.Main.imgProfileSecSelect_Click(layout);
    SectionFigure figure;
    figure.Show(desk.Main.DescribeSection().Drawing, CommaLocale());
    for (const QSize size : {QSize(240, 210), QSize(600, 220), QSize(220, 600)}) {
      figure.resize(size);
      EXPECT_GT(CountPixels(figure, SteelColor(figure.palette())), 20)
          << layout << ' ' << size.width();
      // Nothing of it is cut off: the outermost pixels are ground.
      const QImage image = figure.grab().toImage();
      const QRgb ground = figure.palette().color(QPalette::Window).rgb();
      for (int x = 0; x < image.width(); ++x) {
        ASSERT_EQ(image.pixel(x, 0), ground) << layout;
        ASSERT_EQ(image.pixel(x, image.height() - 1), ground) << layout;
      }
      for (int y = 0; y < image.height(); ++y) {
        ASSERT_EQ(image.pixel(0, y), ground) << layout;
        ASSERT_EQ(image.pixel(image.width() - 1, y), ground) << layout;
      }
    }
  }
}

}  // namespace
}  // namespace trelonit::test
