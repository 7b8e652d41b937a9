// The window in which a font and its colour are chosen.

#include <QColorDialog>
#include <QFontDialog>
#include <QListView>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "windows/DocumentDialogs.h"
#include "windows/FontWindow.h"

namespace trelonit::test {
namespace {

class FontWindowOnScreen : public ::testing::Test {
 protected:
  /// Opens the window and lets the user act.
  static std::optional<CharFormat> Ask(const CharFormat& present,
                                       std::function<void(QDialog&)> act) {
    const OnceModal<QDialog> once(std::move(act));
    DocumentDialogs dialogs;
    const std::optional<CharFormat> chosen = dialogs.ShowFont(present);
    EXPECT_TRUE(once.Acted());
    return chosen;
  }
  static QFontDialog& Fonts(const QDialog& window) { return Find<QFontDialog>(window, ""); }
  static void Accept(const QDialog& window) { Click(StandardButton(window, QDialogButtonBox::Ok)); }

  const CharFormat present{.FontName = "DejaVu Serif",
                           .FontSize = 14,
                           .Bold = true,
                           .Italic = true,
                           .Underline = true,
                           .StrikeThru = true,
                           .TextColor = 0x332211};
};

TEST_F(FontWindowOnScreen, ShowsThePresentFont) {
  Ask(present, [](QDialog& window) {
    EXPECT_EQ(FromQt(window.windowTitle()), "Шрифт");
    EXPECT_TRUE(Fonts(window).isVisible());
    EXPECT_FALSE(Fonts(window).isWindow());
    const QFont font = Fonts(window).currentFont();
    EXPECT_EQ(FromQt(font.family()), "DejaVu Serif");
    EXPECT_EQ(font.pointSize(), 14);
    EXPECT_TRUE(font.bold() && font.italic() && font.underline() && font.strikeOut());
    const auto& color = Find<QPushButton>(window, "Color");
    EXPECT_EQ(color.icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(0x11, 0x22, 0x33));
  });
}

TEST_F(FontWindowOnScreen, ReturnsTheSameWhereNothingIsTouched) {
  EXPECT_EQ(Ask(present, Accept), present);
}

TEST_F(FontWindowOnScreen, KeepsAFontThatTheMachineDoesNotHave) {
  const CharFormat missing{.FontName = "No Such Family", .FontSize = 9};
  EXPECT_EQ(Ask(missing, Accept), missing);
  EXPECT_EQ(Ask({}, Accept), CharFormat());
}

TEST_F(FontWindowOnScreen, KeepsASizeBetweenWholePoints) {
  CharFormat half = present;
  half.FontSize = 10.5;
  EXPECT_EQ(Ask(half, Accept), half);
}

TEST_F(FontWindowOnScreen, ReturnsWhatWasChosen) {
  const std::optional<CharFormat> chosen = Ask(present, [](QDialog& window) {
    QFont font(QStringLiteral("DejaVu Sans Mono"), 20);
    Fonts(window).setCurrentFont(font);
    const OnceModal<QColorDialog> once([](QColorDialog& dialog) {
      EXPECT_EQ(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
      dialog.setCurrentColor(QColor(1, 2, 3));
      dialog.accept();
    });
    Click(Find<QPushButton>(window, "Color"));
    EXPECT_TRUE(once.Acted());
    Accept(window);
  });
  EXPECT_EQ(chosen,
            (CharFormat{.FontName = "DejaVu Sans Mono", .FontSize = 20, .TextColor = 0x030201}));
}

TEST_F(FontWindowOnScreen, ReturnsNothingOnCancel) {
  EXPECT_EQ(Ask(present,
                [](QDialog& window) { Click(StandardButton(window, QDialogButtonBox::Cancel)); }),
            std::nullopt);
}

TEST_F(FontWindowOnScreen, TakesEnterAndEscapeInItsLists) {
  const auto inLists = [this](Qt::Key key, bool accepted) {
    for (int list = 0; list < 3; ++list) {
      bool closed = false;
      const std::optional<CharFormat> chosen = Ask(present, [&](QDialog& window) {
        const QList<QListView*> lists = Fonts(window).findChildren<QListView*>();
        ASSERT_GE(lists.size(), 3);
        lists[list]->setFocus();
        QTest::keyClick(lists[list], key);
        closed = !window.isVisible();
      });
      EXPECT_TRUE(closed) << list;
      EXPECT_EQ(chosen.has_value(), accepted) << list;
    }
  };
  inLists(Qt::Key_Escape, false);
  inLists(Qt::Key_Return, true);
}

}  // namespace
}  // namespace trelonit::test
