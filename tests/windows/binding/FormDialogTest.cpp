#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "windows/binding/FormDialog.h"

namespace trelonit::test {
namespace {

/// What a form has for its window.
struct BareForm {
  BareForm() { Title.SetCaption("Окно"); }
  Label Title;
  std::function<void()> Unload;
};

TEST(FormDialogTitle, IsThatOfTheFormAndFollowsIt) {
  BareForm form;
  const FormDialog window(form.Title, form.Unload, nullptr);
  EXPECT_EQ(FromQt(window.windowTitle()), "Окно");
  form.Title.SetCaption(" . Окно");
  EXPECT_EQ(FromQt(window.windowTitle()), " . Окно");
}

TEST(FormDialogUnload, ClosesTheWindowThatWaits) {
  BareForm form;
  FormDialog window(form.Title, form.Unload, nullptr);
  const OnceModal<QDialog> user([&](QDialog& modal) {
    EXPECT_EQ(&modal, &window);
    form.Unload();
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_EQ(window.exec(), QDialog::Accepted);
  EXPECT_TRUE(user.Acted());
}

TEST(FormDialogUnload, GoesWithTheWindow) {
  BareForm form;
  {
    const FormDialog window(form.Title, form.Unload, nullptr);
    EXPECT_TRUE(form.Unload);
  }
  EXPECT_FALSE(form.Unload);
  EXPECT_FALSE(form.Title.Bound);
}

TEST(FormDialogUnload, BelongsToTheNextWindowOfTheForm) {
  BareForm form;
  { const FormDialog before(form.Title, form.Unload, nullptr); }
  FormDialog window(form.Title, form.Unload, nullptr);
  window.show();
  form.Unload();
  EXPECT_FALSE(window.isVisible());
}

TEST(FormDialogLeft, ByEscapeOrTheCrossIsNoAcceptance) {
  BareForm form;
  FormDialog byKey(form.Title, form.Unload, nullptr);
  ShowActive(byKey);
  QTest::keyClick(&byKey, Qt::Key_Escape);
  EXPECT_FALSE(byKey.isVisible());
  EXPECT_EQ(byKey.result(), QDialog::Rejected);

  BareForm another;
  FormDialog byCross(another.Title, another.Unload, nullptr);
  ShowActive(byCross);
  byCross.close();
  EXPECT_FALSE(byCross.isVisible());
  EXPECT_EQ(byCross.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace trelonit::test
