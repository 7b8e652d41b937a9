// The list of date and time forms over the document window.

#include <QListWidget>

#include "platform/system/SystemTimeText.h"
#include "tests/windows/Modal.h"
#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class DateWindowOnScreen : public ::testing::Test, protected OtchetScreen {
 protected:
  DateWindowOnScreen() {
    Outside.Clock.Reading = {2026, 1, 2, 3, 4, 5};
    Start();
  }

  /// Opens the window by the menu and lets the user act.
  void Open(std::function<void(QDialog&)> act) {
    const OnceModal<QDialog> once(std::move(act));
    Trigger("mnuEdit11");
    EXPECT_TRUE(once.Acted());
  }
  static QListWidget& List(const QDialog& window) { return Find<QListWidget>(window, "List1"); }
  static QPoint PlaceOf(QListWidget& list, int row) {
    return list.visualItemRect(list.item(row)).center();
  }
  /// The form that is the system's own, where it has one.
  std::string BySystem(const char* otherwise) const {
    return SystemTimeText(Outside.Clock.Reading).value_or(otherwise);
  }
  static void ClickRow(const QDialog& window, int row) {
    QListWidget& list = List(window);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, row));
  }
};

TEST_F(DateWindowOnScreen, OffersTheFormsOfThisMoment) {
  Open([this](QDialog& window) {
    EXPECT_EQ(FromQt(window.windowTitle()), "Дата и время");
    Texts rows;
    for (int row = 0; row < List(window).count(); ++row) {
      rows.push_back(FromQt(List(window).item(row)->text()));
    }
    EXPECT_EQ(rows,
              (Texts{"02/01/26", "2/01/26", "02/01/2026", "2026-01-02", "пятница, 2 января 2026",
                     "03:04:05-(24 hr)", "3:04:05", BySystem("02.01.2026 3:04:05")}));
    EXPECT_TRUE(List(window).selectedItems().isEmpty());
    EXPECT_TRUE(Soon([&window] { return List(window).hasFocus(); }));
    EXPECT_EQ(FromQt(Find<QPushButton>(window, "cmdOK").text()), "OK");
    EXPECT_EQ(FromQt(Find<QPushButton>(window, "cmdCancel").text()), "Cancel");
  });
}

TEST_F(DateWindowOnScreen, InsertsTheChosenFormAtTheCaret) {
  Enter("ab");
  Box->SetSelStart(1);
  Open([](QDialog& window) {
    ClickRow(window, 3);
    Click(Find<QPushButton>(window, "cmdOK"));
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_EQ(Box->Text(), "a2026-01-02\r\nb");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "a2026-01-02\nb");
  Trigger("mnuEdit0");
  EXPECT_EQ(Box->Text(), "ab");
}

TEST_F(DateWindowOnScreen, TakesArrowsAndEnter) {
  Open([](QDialog& window) {
    ASSERT_TRUE(Soon([&window] { return List(window).hasFocus(); }));
    for (int row = 0; row < 3; ++row) {
      QTest::keyClick(&List(window), Qt::Key_Down);
      EXPECT_EQ(List(window).selectedItems(), QList{List(window).item(row)});
    }
    QTest::keyClick(&List(window), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_EQ(Box->Text(), "02/01/2026\r\n");
}

TEST_F(DateWindowOnScreen, TakesADoubleClick) {
  Open([](QDialog& window) {
    QListWidget& list = List(window);
    ClickRow(window, 5);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 5));
    EXPECT_FALSE(window.isVisible());
  });
  // The note behind the time is the list's alone.
  EXPECT_EQ(Box->Text(), "03:04:05\r\n");
}

TEST_F(DateWindowOnScreen, InsertsTheTimeOfTheInsertion) {
  Open([this](QDialog& window) {
    ClickRow(window, 6);
    Outside.Clock.Reading.Second = 59;
    Click(Find<QPushButton>(window, "cmdOK"));
  });
  EXPECT_EQ(Box->Text(), "3:04:59\r\n");
}

TEST_F(DateWindowOnScreen, InsertsNothingWithoutASelection) {
  Open([](QDialog& window) { Click(Find<QPushButton>(window, "cmdOK")); });
  EXPECT_EQ(Form->Undo.UndoCount(), 0);
}

TEST_F(DateWindowOnScreen, InsertsNothingOnEscapeCancelAndClosing) {
  const std::vector<std::function<void(QDialog&)>> ways{
      [](QDialog& window) { QTest::keyClick(&List(window), Qt::Key_Escape); },
      [](QDialog& window) { Click(Find<QPushButton>(window, "cmdCancel")); },
      [](QDialog& window) { window.close(); }};
  for (const auto& leave : ways) {
    Open([&leave](QDialog& window) {
      ClickRow(window, 0);
      leave(window);
      EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(Box->Text(), "");
  }
}

TEST_F(DateWindowOnScreen, BeginsAfreshEachTime) {
  Open([](QDialog& window) {
    ClickRow(window, 4);
    window.close();
  });
  Outside.Clock.Reading.Day = 3;
  Open([](QDialog& window) {
    EXPECT_TRUE(List(window).selectedItems().isEmpty());
    EXPECT_EQ(FromQt(List(window).item(0)->text()), "03/01/26");
  });
}

TEST_F(DateWindowOnScreen, OpensByItsKeyAndItsButton) {
  int opened = 0;
  const auto count = [&opened](QDialog&) { ++opened; };
  {
    const OnceModal<QDialog> once(count);
    Key(Qt::Key_F5);
  }
  Trigger("mnuViewToolbar");
  {
    const OnceModal<QDialog> once(count);
    QTest::mouseClick(ToolBar().widgetForAction(&Entry("mnuEdit11")), Qt::LeftButton);
  }
  EXPECT_EQ(opened, 2);
}

}  // namespace
}  // namespace trelonit::test
