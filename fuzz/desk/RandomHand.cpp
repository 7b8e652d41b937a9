#include "fuzz/desk/RandomHand.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <array>
#include <cstdio>

namespace trelonit::fuzz {

namespace {

/// What boxes of numbers, names and tables take, and what they do not.
const QString letters = QStringLiteral("0123456789,.-+eE абвгЯLx*=();\"%\t");

constexpr std::array keys{Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Enter,
                          Qt::Key_Escape, Qt::Key_Delete,  Qt::Key_Backspace, Qt::Key_Insert,
                          Qt::Key_Space,  Qt::Key_Menu,    Qt::Key_Left,      Qt::Key_Right,
                          Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Home,      Qt::Key_End,
                          Qt::Key_PageUp, Qt::Key_F1,      Qt::Key_PageDown,  Qt::Key_F2,
                          Qt::Key_F3,     Qt::Key_F5,      Qt::Key_F9,        Qt::Key_F10};
constexpr std::array keysWithControl{
    Qt::Key_A, Qt::Key_B, Qt::Key_C,    Qt::Key_D,   Qt::Key_E,      Qt::Key_F,    Qt::Key_I,
    Qt::Key_L, Qt::Key_M, Qt::Key_N,    Qt::Key_R,   Qt::Key_S,      Qt::Key_T,    Qt::Key_U,
    Qt::Key_V, Qt::Key_X, Qt::Key_Y,    Qt::Key_Z,   Qt::Key_0,      Qt::Key_Plus, Qt::Key_Minus,
    Qt::Key_W, Qt::Key_G, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Tab};

/// Qt's file dialogue can delete and rename what is on the disk, and falls over folders that come
/// and go while it shows them.
bool IsFileDialog(const QWidget& window) {
  return qobject_cast<const QFileDialog*>(&window) != nullptr;
}
bool MakesFolders(const QObject& object) {
  return object.objectName() == QLatin1String("newFolderButton") ||
         object.objectName().startsWith(QLatin1String("qt_"));
}

}  // namespace

int RandomHand::Below(int count) {
  return count <= 0 ? 0 : std::uniform_int_distribution<int>(0, count - 1)(random_);
}

void RandomHand::Tell(const char* what, const QWidget& widget, const QString& how) const {
  std::fprintf(stderr, "%ld %s %s '%s' in '%s' %s\n", acts_, what, widget.metaObject()->className(),
               qPrintable(widget.objectName()), qPrintable(widget.window()->windowTitle()),
               qPrintable(how));
}

QWidget* RandomHand::Window() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    return popup;
  }
  if (QWidget* modal = QApplication::activeModalWidget()) {
    return modal;
  }
  QWidgetList shown = QApplication::topLevelWidgets();
  shown.removeIf([](const QWidget* window) { return !window->isVisible(); });
  return shown.isEmpty() ? nullptr : shown[Below(static_cast<int>(shown.size()))];
}

QWidget& RandomHand::Place(QWidget& window) {
  QWidget* place = nullptr;
  if (Below(3) == 0) {
    place = window.childAt(Point(window));
  } else {
    QWidgetList children = window.findChildren<QWidget*>();
    children.removeIf([&window](const QWidget* child) {
      return !child->isVisible() || child->size().isEmpty() || child->window() != &window;
    });
    place = children.isEmpty() ? nullptr : children[Below(static_cast<int>(children.size()))];
  }
  return place == nullptr || MakesFolders(*place) ? window : *place;
}

QPoint RandomHand::Point(const QWidget& widget) {
  return {Below(widget.width()), Below(widget.height())};
}

void RandomHand::Click(QWidget& window) {
  QWidget& place = Place(window);
  const QPoint point = Point(place);
  const Qt::MouseButton button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
  const int held = Below(20);
  const Qt::KeyboardModifier with = held < 2   ? Qt::ControlModifier
                                    : held < 4 ? Qt::ShiftModifier
                                               : Qt::NoModifier;
  const bool twice = Below(9) == 0;
  Tell(twice ? "double click" : "click", place,
       QStringLiteral("%1,%2").arg(point.x()).arg(point.y()));
  if (twice) {
    QTest::mouseDClick(&place, Qt::LeftButton, {}, point);
  } else {
    QTest::mouseClick(&place, button, with, point);
  }
}

void RandomHand::Drag(QWidget& window) {
  const QPointer<QWidget> place(&Place(window));
  Tell("drag", *place);
  QTest::mousePress(place, Qt::LeftButton, {}, Point(*place));
  for (int move = 0; move < 3 && place; ++move) {
    QTest::mouseMove(place, Point(*place));
  }
  if (place) {
    QTest::mouseRelease(place, Qt::LeftButton, {}, Point(*place));
  }
}

void RandomHand::Type(QWidget& window) {
  const QPointer<QWidget> place(window.focusWidget() != nullptr ? window.focusWidget() : &window);
  for (int count = 1 + Below(4); count > 0 && place; --count) {
    const QString letter(letters[Below(static_cast<int>(letters.size()))]);
    Tell("type", *place, letter);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      if (place) {
        QKeyEvent key(type, 0, Qt::NoModifier, letter);
        QApplication::sendEvent(place, &key);
      }
    }
  }
}

void RandomHand::Press(QWidget& window) {
  QWidget* place = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  Qt::Key key = keys.at(static_cast<std::size_t>(Below(static_cast<int>(keys.size()))));
  Qt::KeyboardModifier with = Below(6) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
  if (Below(3) == 0) {
    key = keysWithControl.at(
        static_cast<std::size_t>(Below(static_cast<int>(keysWithControl.size()))));
    with = Qt::ControlModifier;
  }
  if (key == Qt::Key_Delete && IsFileDialog(window)) {
    key = Qt::Key_Escape;
  }
  Tell("key", *place, QKeySequence(key | with).toString());
  QTest::keyClick(place, key, with);
}

void RandomHand::Turn(QWidget& window) {
  QWidget& place = Place(window);
  Tell("wheel", place);
  QWheelEvent wheel({1, 1}, place.mapToGlobal(QPointF(1, 1)), {}, {0, Below(2) == 0 ? 120 : -120},
                    Qt::NoButton, Below(4) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&place, &wheel);
}

void RandomHand::AskForMenu(QWidget& window) {
  if (IsFileDialog(window)) {
    return;
  }
  QWidget& place = Place(window);
  Tell("menu", place);
  QContextMenuEvent menu(QContextMenuEvent::Mouse, {2, 2}, place.mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(&place, &menu);
}

void RandomHand::Choose(QWidget& window) {
  QList<QAction*> commands = window.findChildren<QAction*>();
  commands.removeIf([](const QAction* command) {
    return !command->isEnabled() || command->isSeparator() || command->menu() != nullptr ||
           MakesFolders(*command) || command->objectName() == QLatin1String("Exit");
  });
  if (!commands.isEmpty()) {
    QAction* command = commands[Below(static_cast<int>(commands.size()))];
    Tell("command", window, command->objectName() + QLatin1Char(' ') + command->text());
    command->trigger();
  }
}

void RandomHand::Resize(QWidget& window) {
  window.resize(window.size() + QSize(Below(81) - 40, Below(81) - 40));
}

void RandomHand::FillClipboard() {
  const QStringList texts{QStringLiteral("верхний\t2\t1,5\nнижний\t3\t2"),
                          QStringLiteral("1;2;3\n4;5;6"),
                          QStringLiteral("abc"),
                          QString(1000, u'9'),
                          QStringLiteral("12,5"),
                          QStringLiteral("-1e308")};
  QApplication::clipboard()->setText(texts[Below(static_cast<int>(texts.size()))]);
}

void RandomHand::Close(QWidget& window) {
  // Seldom the main window: that is the end.
  if (qobject_cast<QMainWindow*>(&window) == nullptr || Below(10) == 0) {
    Tell("close", window);
    window.close();
  }
}

void RandomHand::Act() {
  ++acts_;
  QWidget* window = Window();
  if (window == nullptr) {
    return;
  }
  struct Share {
    int Share;
    void (RandomHand::*Act)(QWidget&);
  };
  constexpr std::array shares{Share{38, &RandomHand::Click},  Share{4, &RandomHand::Drag},
                              Share{18, &RandomHand::Type},   Share{18, &RandomHand::Press},
                              Share{4, &RandomHand::Turn},    Share{3, &RandomHand::AskForMenu},
                              Share{10, &RandomHand::Choose}, Share{2, &RandomHand::Resize},
                              Share{1, &RandomHand::Close}};
  int drawn = Below(100);
  for (const Share& share : shares) {
    if (drawn < share.Share) {
      (this->*share.Act)(*window);
      return;
    }
    drawn -= share.Share;
  }
  FillClipboard();
}

}  // namespace trelonit::fuzz
