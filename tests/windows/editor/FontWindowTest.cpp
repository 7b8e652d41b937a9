// The window in which a font and its colour are chosen.

#include <QColorDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QListView>
#include <algorithm>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "windows/editor/DocumentDialogs.h"
#include "windows/editor/FontWindow.h"

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
  /// The window's own button, not one that the lists bring along.
  static QPushButton& Button(const QDialog& window, QDialogButtonBox::StandardButton which) {
    return *window.findChild<QDialogButtonBox*>(QString(), Qt::FindDirectChildrenOnly)
                ->button(which);
  }
  static void Accept(const QDialog& window) { Click(Button(window, QDialogButtonBox::Ok)); }
  /// Families, styles, sizes.
  static QListView& List(const QDialog& window, int number) {
    return *Fonts(window).findChildren<QListView*>().at(number);
  }
  static void PickRow(QListView& list, const std::string& text) {
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      const QModelIndex index = list.model()->index(row, 0);
      if (FromQt(index.data().toString()) == text) {
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        return;
      }
    }
    throw std::logic_error("not in the list: " + text);
  }
  /// Where a size is typed.
  static QLineEdit& SizeEdit(const QDialog& window) {
    for (QLineEdit* edit : Fonts(window).findChildren<QLineEdit*>()) {
      if (!edit->isReadOnly() && edit->text() == QLatin1String("14")) {
        return *edit;
      }
    }
    throw std::logic_error("no size");
  }

  /// Some machines have the upright letters of a family only.
  static bool HasItalics(const char* family) {
    const QStringList styles = QFontDatabase::styles(QLatin1String(family));
    return std::any_of(styles.begin(), styles.end(), [family](const QString& style) {
      return QFontDatabase::italic(QLatin1String(family), style);
    });
  }

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
    EXPECT_TRUE(font.bold() && font.underline() && font.strikeOut());
    EXPECT_EQ(font.italic(), HasItalics("DejaVu Serif"));
    const auto& color = Find<QPushButton>(window, "Color");
    EXPECT_EQ(color.icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(0x11, 0x22, 0x33));
  });
}

TEST_F(FontWindowOnScreen, ReturnsTheSameWhereNothingIsTouched) {
  EXPECT_EQ(Ask(present, Accept), present);
}

TEST_F(FontWindowOnScreen, KeepsTheStyleOfEveryFamily) {
  // They call their upright style by different names, and some have no italics on this machine.
  for (const char* family : {"DejaVu Sans Mono", "DejaVu Sans", "Liberation Mono"}) {
    for (const bool bold : {false, true}) {
      for (const bool italic : {false, true}) {
        const CharFormat format{.FontName = family, .Bold = bold, .Italic = italic};
        EXPECT_EQ(Ask(format, Accept), format) << family << bold << italic;
      }
    }
  }
}

TEST_F(FontWindowOnScreen, KeepsAFontThatTheMachineDoesNotHave) {
  const CharFormat missing{.FontName = "No Such Family", .FontSize = 9};
  EXPECT_EQ(Ask(missing, Accept), missing);
  EXPECT_EQ(Ask({}, Accept), CharFormat());
}

TEST_F(FontWindowOnScreen, ShowsWhatStandsForAMissingFont) {
  Ask({.FontName = "Lucida Console"},
      [](QDialog& window) { EXPECT_TRUE(QFontInfo(Fonts(window).currentFont()).fixedPitch()); });
}

TEST_F(FontWindowOnScreen, KeepsASizeBetweenWholePoints) {
  CharFormat half = present;
  half.FontSize = 10.5;
  EXPECT_EQ(Ask(half, Accept), half);
}

TEST_F(FontWindowOnScreen, ReturnsWhatWasChosen) {
  const std::optional<CharFormat> chosen = Ask(present, [](QDialog& window) {
    PickRow(List(window, 0), "DejaVu Sans Mono");
    PickRow(List(window, 1), "Book");
    PickRow(List(window, 2), "20");
    const OnceModal<QColorDialog> once([](QColorDialog& dialog) {
      EXPECT_EQ(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
      dialog.setCurrentColor(QColor(1, 2, 3));
      dialog.accept();
    });
    Click(Find<QPushButton>(window, "Color"));
    EXPECT_TRUE(once.Acted());
    Accept(window);
  });
  ASSERT_TRUE(chosen.has_value());
  EXPECT_EQ(chosen->FontName, "DejaVu Sans Mono");
  EXPECT_EQ(chosen->FontSize, 20);
  EXPECT_FALSE(chosen->Bold || chosen->Italic);
  EXPECT_TRUE(chosen->Underline && chosen->StrikeThru);
  EXPECT_EQ(chosen->TextColor, Color{0x030201});
}

TEST_F(FontWindowOnScreen, TakesAnotherSizeOfAFontThatIsMissing) {
  const std::optional<CharFormat> chosen = Ask({.FontName = "No Such Family"}, [](QDialog& window) {
    PickRow(List(window, 2), "20");
    Accept(window);
  });
  EXPECT_EQ(chosen, (CharFormat{.FontName = "No Such Family", .FontSize = 20}));
}

TEST_F(FontWindowOnScreen, ReturnsNothingOnCancel) {
  EXPECT_EQ(Ask(present, [](QDialog& window) { Click(Button(window, QDialogButtonBox::Cancel)); }),
            std::nullopt);
}

TEST_F(FontWindowOnScreen, TakesEnterAndEscapeEverywhere) {
  const auto everywhere = [this](Qt::Key key, bool accepted) {
    for (int place = 0; place < 4; ++place) {
      bool closed = false;
      const std::optional<CharFormat> chosen = Ask(present, [&](QDialog& window) {
        QWidget& widget = place < 3 ? static_cast<QWidget&>(List(window, place)) : SizeEdit(window);
        widget.setFocus();
        QTest::keyClick(&widget, key);
        closed = Soon([&window] { return !window.isVisible(); });
      });
      EXPECT_TRUE(closed) << place;
      EXPECT_EQ(chosen.has_value(), accepted) << place;
    }
  };
  everywhere(Qt::Key_Escape, false);
  everywhere(Qt::Key_Return, true);
}

}  // namespace
}  // namespace trelonit::test
