#include <QAction>
#include <QLineEdit>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "windows/binding/ClearButton.h"

namespace trelonit::test {

namespace {

TEST(ClearButton, IsThereWhileThereIsATextAndTakesItAway) {
  QLineEdit edit(QStringLiteral("100x10"));
  AddClearButton(edit);
  auto* clear = edit.findChild<QAction*>(QStringLiteral("ClearText"));
  ASSERT_NE(clear, nullptr);
  EXPECT_TRUE(clear->isVisible());
  QSignalSpy edited(&edit, &QLineEdit::textEdited);
  clear->trigger();
  EXPECT_TRUE(edit.text().isEmpty());
  EXPECT_EQ(edited.count(), 1);
  EXPECT_FALSE(clear->isVisible());
  edit.setText(QStringLiteral("6"));
  EXPECT_TRUE(clear->isVisible());
}

}  // namespace

}  // namespace trelonit::test
