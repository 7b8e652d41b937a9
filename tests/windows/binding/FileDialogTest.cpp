#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <optional>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "windows/binding/FileDialog.h"

namespace trelonit::test {
namespace {

/// Looks when its window goes whether a list is still open, which would hold the keyboard.
class ListAtTheEnd : public QObject {
 public:
  explicit ListAtTheEnd(QDialog& dialog) { dialog.installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Hide) {
      WasOpen = QApplication::activePopupWidget() != nullptr;
    }
    return false;
  }

  std::optional<bool> WasOpen;
};

TEST(FileDialogOnScreen, TakesTheNamesThatItOffersAlong) {
  const QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("24.tsav"));
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  FileDialog dialog(nullptr, FileDialog::AcceptOpen, QStringLiteral("Open"), folder.path(), {});
  ListAtTheEnd list(dialog);
  const OnceModal<QFileDialog> once([&](QFileDialog& shown) {
    auto& edit = Find<QLineEdit>(shown, "fileNameEdit");
    // The folder is read on another thread.
    ASSERT_TRUE(QTest::qWaitFor([&] {
      edit.clear();
      QTest::keyClicks(&edit, QStringLiteral("2"));
      return QApplication::activePopupWidget() != nullptr;
    }));
    edit.setText(name);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(dialog.Ask(), name);
  EXPECT_TRUE(once.Acted());
  EXPECT_EQ(list.WasOpen, false);
}

}  // namespace
}  // namespace trelonit::test
