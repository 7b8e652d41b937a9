#include <QApplication>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <gtest/gtest.h>

#include "windows/office/ConversionProgress.h"

namespace trelonit::test {
namespace {

QProgressDialog* ShownDialog() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<QProgressDialog*>(window);
    if (dialog != nullptr && dialog->isVisible()) {
      return dialog;
    }
  }
  return nullptr;
}

TEST(ConversionProgress, IsShownAsLongAsTheConversionRuns) {
  std::unique_ptr<ConversionWatch> watch = ShowConversionProgress();
  ASSERT_NE(watch, nullptr);
  const QProgressDialog* dialog = ShownDialog();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->labelText(), "Преобразование документа Word…");
  EXPECT_TRUE(dialog->isModal());
  EXPECT_FALSE(watch->Cancelled());
  EXPECT_NE(ShownDialog(), nullptr);
  watch.reset();
  EXPECT_EQ(ShownDialog(), nullptr);
}

TEST(ConversionProgress, ItsButtonStopsTheConversion) {
  const std::unique_ptr<ConversionWatch> watch = ShowConversionProgress();
  ASSERT_NE(ShownDialog(), nullptr);
  auto* button = ShownDialog()->findChild<QPushButton*>();
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(), "Отмена");
  button->click();
  EXPECT_TRUE(watch->Cancelled());
}

TEST(ConversionProgress, ClosingItStopsTheConversionToo) {
  const std::unique_ptr<ConversionWatch> watch = ShowConversionProgress();
  ASSERT_NE(ShownDialog(), nullptr);
  ShownDialog()->close();
  EXPECT_TRUE(watch->Cancelled());
}

}  // namespace
}  // namespace trelonit::test
