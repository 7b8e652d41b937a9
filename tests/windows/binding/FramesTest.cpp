#include <QApplication>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <gtest/gtest.h>
#include <memory>

#include "windows/binding/Frames.h"

namespace trelonit::test {
namespace {

std::unique_ptr<QStyle> Fusion() {
  return std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("fusion")));
}

/// As it stands on the screen, by the toolkit's own style.
QImage Painted(QWidget& widget, QSize size, const QPalette& palette,
               std::unique_ptr<QStyle> style = Fusion()) {
  widget.setStyle(style.get());
  widget.setPalette(palette);
  widget.resize(size);
  widget.show();
  QApplication::processEvents();
  QImage picture = widget.grab().toImage();
  widget.setStyle(nullptr);
  return picture;
}

class Frames : public testing::TestWithParam<bool> {
 protected:
  static QPalette Colours() {
    return GetParam() ? QPalette(QColor(49, 54, 59), QColor(42, 46, 50)) : QPalette();
  }
  /// Smaller than the corners, one row of pieces, and several of them with rests.
  static constexpr QSize sizes[] = {{70, 50}, {100, 90}, {300, 150}, {401, 217}, {1250, 617}};
};

INSTANTIATE_TEST_SUITE_P(LightAndDark, Frames, testing::Bool());

TEST_P(Frames, OfAGroupLookAsTheToolkitPaintsThem) {
  for (const QSize size : sizes) {
    for (const char* title : {"Title", ""}) {
      Group group{QLatin1String(title)};
      QGroupBox plain{QLatin1String(title)};
      EXPECT_EQ(Painted(group, size, Colours()), Painted(plain, size, Colours()))
          << size.width() << " x " << size.height() << " " << title;
    }
  }
}

TEST_P(Frames, OfTabsLookAsTheToolkitPaintsThem) {
  for (const QSize size : sizes) {
    Tabs tabs;
    QTabWidget plain;
    tabs.addTab(new QWidget, QStringLiteral("Page"));
    plain.addTab(new QWidget, QStringLiteral("Page"));
    EXPECT_EQ(Painted(tabs, size, Colours()), Painted(plain, size, Colours()))
        << size.width() << " x " << size.height();
  }
}

TEST_P(Frames, OfADisabledGroupLookAsTheToolkitPaintsThem) {
  Group group(QStringLiteral("Title"));
  QGroupBox plain(QStringLiteral("Title"));
  group.setEnabled(false);
  plain.setEnabled(false);
  EXPECT_EQ(Painted(group, sizes[2], Colours()), Painted(plain, sizes[2], Colours()));
}

TEST_P(Frames, OfAStyleWithMarksOfItsOwnLookTheSame) {
  Group group(QStringLiteral("Title"));
  EXPECT_EQ(Painted(group, sizes[2], Colours(), std::make_unique<QProxyStyle>(Fusion().release())),
            Painted(group, sizes[2], Colours()));
}

TEST(FramesOfOtherStyles, AreThoseOfTheStyle) {
  const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("windows")));
  Group group(QStringLiteral("Title"));
  QGroupBox plain(QStringLiteral("Title"));
  for (QWidget* widget : {static_cast<QWidget*>(&group), static_cast<QWidget*>(&plain)}) {
    widget->setStyle(style.get());
    widget->resize(300, 150);
  }
  EXPECT_EQ(group.grab().toImage(), plain.grab().toImage());
  group.setStyle(nullptr);
  plain.setStyle(nullptr);
}

}  // namespace
}  // namespace trelonit::test
