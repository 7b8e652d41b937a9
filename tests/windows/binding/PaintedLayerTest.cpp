#include <QPainter>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>

#include "windows/binding/PaintedLayer.h"
#include "windows/binding/PaintingAside.h"

namespace trelonit::test {
namespace {

/// Shows a layer and knows where and how often it was painted.
class LayeredWidget : public QWidget {
 public:
  LayeredWidget() { resize(40, 20); }

  PaintedLayer::Painting Drawing() {
    return [this, color = Color](QPainter& layer) {
      ++Painted;
      PaintedBy = std::this_thread::get_id();
      layer.setPen(color);
      layer.drawEllipse(QPointF(12.3, 9.7), 8, 6);
      layer.drawText(QPointF(4, 15), QStringLiteral("Ферма"));
    };
  }
  QImage Shown() { return grab().toImage(); }

  QColor Color = Qt::red;
  PaintedLayer Layer;
  int Painted = 0;
  std::thread::id PaintedBy;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    Layer.Draw(painter, *this, Drawing());
  }
};

const std::thread::id here = std::this_thread::get_id();

TEST(PaintedLayer, IsPaintedOnceUntilItIsForgotten) {
  LayeredWidget widget;
  const QImage first = widget.Shown();
  EXPECT_EQ(widget.Shown(), first);
  EXPECT_EQ(widget.Painted, 1);
  widget.Color = Qt::blue;
  widget.Layer.Forget();
  EXPECT_NE(widget.Shown(), first);
  EXPECT_EQ(widget.Painted, 2);
}

TEST(PaintedLayer, ThatWasBegunAsideIsPaintedThereAndLooksTheSame) {
  LayeredWidget plain;
  LayeredWidget begun;
  {
    PaintingAside aside;
    begun.Layer.Begin(begun, begun.Drawing(), aside);
  }
  EXPECT_EQ(begun.Shown(), plain.Shown());
  EXPECT_EQ(begun.Shown(), plain.Shown());
  EXPECT_EQ(begun.Painted, 1);
  EXPECT_NE(begun.PaintedBy, here);
  EXPECT_EQ(plain.PaintedBy, here);
}

TEST(PaintedLayer, ThatWasBegunInAnotherSizeIsPaintedAnew) {
  LayeredWidget widget;
  {
    PaintingAside aside;
    widget.Layer.Begin(widget, widget.Drawing(), aside);
  }
  widget.resize(60, 30);
  EXPECT_EQ(widget.Shown().size(), QSize(60, 30));
  EXPECT_EQ(widget.Painted, 2);
  EXPECT_EQ(widget.PaintedBy, here);
}

TEST(PaintedLayer, ThatIsForgottenAfterItWasBegunShowsWhatIsToBeSeenNow) {
  LayeredWidget widget;
  {
    PaintingAside aside;
    widget.Layer.Begin(widget, widget.Drawing(), aside);
  }
  widget.Color = Qt::blue;
  widget.Layer.Forget();
  LayeredWidget blue;
  blue.Color = Qt::blue;
  EXPECT_EQ(widget.Shown(), blue.Shown());
}

TEST(PaintedLayer, OfAWidgetWithoutSizeIsNotBegun) {
  LayeredWidget widget;
  widget.resize(0, 20);
  {
    PaintingAside aside;
    widget.Layer.Begin(widget, widget.Drawing(), aside);
  }
  EXPECT_EQ(widget.Painted, 0);
}

TEST(PaintingAside, PaintsOneAfterTheOtherAndWaitsForAll) {
  std::vector<int> painted;
  std::vector<std::future<QImage>> images;
  {
    PaintingAside aside;
    for (int side = 1; side <= 20; ++side) {
      images.push_back(aside.Begin([&painted, side] {
        painted.push_back(side);
        return QImage(side, side, QImage::Format_ARGB32_Premultiplied);
      }));
    }
  }
  for (int side = 1; side <= 20; ++side) {
    const auto place = static_cast<std::size_t>(side - 1);
    EXPECT_EQ(painted.at(place), side);
    EXPECT_EQ(images.at(place).get().width(), side);
  }
}

TEST(PaintingAside, HandsOnWhatAPaintingThrows) {
  PaintingAside aside;
  std::future<QImage> image =
      aside.Begin([]() -> QImage { throw std::runtime_error("no memory"); });
  EXPECT_THROW(image.get(), std::runtime_error);
}

}  // namespace
}  // namespace trelonit::test
