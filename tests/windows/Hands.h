#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "windows/binding/Binding.h"

namespace trelonit::test {

// What a user's hands do, by mouse and keys.

/// The widget with this name. One that is not there fails the test.
template <class Widget>
Widget& Find(const QWidget& window, const std::string& name) {
  auto* widget = window.findChild<Widget*>(ToQt(name));
  if (widget == nullptr) {
    throw std::logic_error("no widget " + name);
  }
  return *widget;
}

/// The widget that is read aloud with this name.
template <class Widget>
Widget& FindAccessible(const QWidget& window, const std::string& name) {
  for (Widget* widget : window.findChildren<Widget*>()) {
    if (FromQt(widget->accessibleName()) == name) {
      return *widget;
    }
  }
  throw std::logic_error("no widget with accessible name " + name);
}

/// A whole name of a file as this system writes it: from the root of its first drive on, where it
/// has drives.
inline std::string WholeName(const std::string& name) {
  return FileFromQt(QDir::rootPath() + ToQt(name));
}

/// Presses near the left end: beyond a short caption a wide box takes no press.
inline void Click(QAbstractButton& button) {
  QTest::mouseClick(&button, Qt::LeftButton, {},
                    {std::min(10, button.width() / 2), button.height() / 2});
}

inline void Empty(QLineEdit& edit) {
  QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&edit, Qt::Key_Delete);
}

inline void Paste(QLineEdit& edit, const std::string& text) {
  edit.setFocus();
  Empty(edit);
  QApplication::clipboard()->setText(ToQt(text));
  QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
}

/// Key by key. The keys of the test library are those of ASCII; any other text is pasted.
inline void Type(QLineEdit& edit, const std::string& text) {
  if (std::any_of(text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; })) {
    Paste(edit, text);
    return;
  }
  edit.setFocus();
  Empty(edit);
  QTest::keyClicks(&edit, ToQt(text));
}

/// Opens the list, goes to the entry and takes it.
inline void PickEntry(QComboBox& box, int index) {
  if (!box.isEnabled() || index < 0 || index >= box.count()) {
    throw std::logic_error("nothing to pick in " + FromQt(box.objectName()));
  }
  box.showPopup();
  box.view()->setCurrentIndex(box.model()->index(index, 0));
  QTest::keyClick(box.view(), Qt::Key_Return);
}

inline void Pick(QComboBox& box, const std::string& entry) {
  const int index = box.findText(ToQt(entry));
  if (index < 0) {
    throw std::logic_error("not in the list: " + entry);
  }
  PickEntry(box, index);
}

inline void ClickTab(const QTabWidget& tabs, int index) {
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(index).center());
}

inline std::vector<std::string> Entries(const QComboBox& box) {
  std::vector<std::string> entries;
  for (int index = 0; index < box.count(); ++index) {
    entries.push_back(FromQt(box.itemText(index)));
  }
  return entries;
}

}  // namespace trelonit::test
