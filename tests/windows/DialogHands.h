#pragma once

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <functional>
#include <gtest/gtest.h>
#include <set>

#include "apps/Program.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"
#include "tests/windows/Hands.h"
#include "windows/main/MainWindow.h"

namespace trelonit::test {

using Texts = std::vector<std::string>;

/// A widget as a message of a test names it.
inline std::string NameOf(const QWidget& widget) {
  return std::string(widget.metaObject()->className()) + " " + FromQt(widget.objectName()) + " " +
         FromQt(widget.accessibleName());
}

/// The button that the toolkit itself captions.
inline QPushButton& StandardButton(const QWidget& window, QDialogButtonBox::StandardButton which) {
  for (const auto* box : window.findChildren<QDialogButtonBox*>()) {
    if (QPushButton* button = box->button(which)) {
      return *button;
    }
  }
  throw std::logic_error("no such standard button");
}

/// Shows the window and waits until keys go to it.
inline void ShowActive(QWidget& window) {
  window.show();
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) {
    throw std::logic_error("the window does not become active");
  }
}

/// Waits for what a key does to a button: it stays down for a moment before it acts.
inline bool Soon(const std::function<bool()>& condition) {
  constexpr int longest = 500;
  return QTest::qWaitFor(condition, longest);
}

/// A key to whatever has the focus now.
inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// Alt with the letter that the caption underlines.
inline void PressMnemonic(const QString& caption) {
  const QKeySequence keys = QKeySequence::mnemonic(caption);
  if (keys.isEmpty()) {
    throw std::logic_error("no mnemonic in " + FromQt(caption));
  }
  // With its text: the toolkit's own table of keys ends at Latin letters.
  const Qt::Key letter = keys[0].key();
  QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), letter, QChar(letter),
                      Qt::AltModifier);
}

/// What the labels of the window in sight say, without the marks of mnemonics.
inline Texts LabelsIn(const QWidget& window) {
  Texts texts;
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->isVisible()) {
      texts.push_back(FromQt(label->text().remove(QLatin1Char('&'))));
    }
  }
  return texts;
}

inline bool Has(const Texts& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// What the label in front of the widget says.
inline std::string CaptionOf(const QWidget& window, const QWidget& widget) {
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() == &widget) {
      return FromQt(label->text().remove(QLatin1Char('&')));
    }
  }
  return {};
}

inline Texts GroupTitles(const QWidget& window) {
  Texts titles;
  for (const auto* box : window.findChildren<QGroupBox*>()) {
    titles.push_back(FromQt(box->title()));
  }
  return titles;
}

/// What can have the focus in the window.
inline std::set<QWidget*> FocusableIn(const QWidget& window) {
  std::set<QWidget*> widgets;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
        widget->focusProxy() == nullptr) {
      widgets.insert(widget);
    }
  }
  return widgets;
}

/// The widgets that Tab leads through, from the one with the focus until it comes round again.
inline std::vector<QWidget*> WalkByTab() {
  constexpr int longest = 100;
  std::vector<QWidget*> reached{QApplication::focusWidget()};
  for (int step = 0; step < longest; ++step) {
    Press(Qt::Key_Tab);
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || focus == reached.front()) {
      break;
    }
    reached.push_back(focus);
  }
  return reached;
}

inline void ExpectTabReachesEveryInputOnce(const QWidget& window) {
  const std::vector<QWidget*> reached = WalkByTab();
  const std::set<QWidget*> expected = FocusableIn(window);
  EXPECT_GT(expected.size(), 1U);
  EXPECT_EQ(reached.size(), expected.size());
  for (const QWidget* widget : expected) {
    EXPECT_EQ(std::count(reached.begin(), reached.end(), widget), 1) << NameOf(*widget);
  }
}

inline void ExpectEveryInputHasAName(const QWidget& window) {
  for (const QWidget* widget : FocusableIn(window)) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    EXPECT_FALSE(widget->accessibleName().isEmpty() &&
                 (button == nullptr || button->text().isEmpty()))
        << NameOf(*widget);
  }
}

/// The main window of a program of which the test says what its other windows do.
class ProgramWith {
 public:
  explicit ProgramWith(Program::Windows windows)
      : Outside(resources_), Root(Outside.Bundle(), std::move(windows)) {
    Root.Main().Form_Load();
    Window = std::make_unique<MainWindow>(Root.Main(), Outside.Settings);
    Window->CompleteTabs();
    Window->show();
  }
  void Press(const std::string& name) { Click(Find<QAbstractButton>(*Window, name)); }
  void GoTo(int tab) { ClickTab(Find<QTabWidget>(*Window, "tabMain"), tab); }
  void Trigger(const std::string& entry) {
    auto* action = Window->findChild<QAction*>(ToQt(entry));
    if (action == nullptr || !action->isEnabled()) {
      throw std::logic_error("no menu entry " + entry);
    }
    action->trigger();
  }
  std::string TextIn(const std::string& name) {
    return FromQt(Find<QLineEdit>(*Window, name).text());
  }
  std::string CaptionIn(const std::string& name) {
    return FromQt(Find<QLabel>(*Window, name).text());
  }

 private:
  EmbeddedResources resources_;

 public:
  World Outside;
  Program Root;
  std::unique_ptr<MainWindow> Window;
};

}  // namespace trelonit::test
