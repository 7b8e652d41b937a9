// How the document window closes.

#include "tests/windows/Modal.h"
#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class OtchetWindowClosing : public ::testing::Test, protected OtchetScreen {};

TEST_F(OtchetWindowClosing, AsksNothingWithoutChanges) {
  Start();
  EXPECT_TRUE(Window->close());
  EXPECT_FALSE(Window->isVisible());
  EXPECT_EQ(Said(), Texts());
}

TEST_F(OtchetWindowClosing, KeepsTheWindowOpenOnCancel) {
  Start();
  Enter("x");
  Answer(MessageAnswer::Cancel);
  EXPECT_FALSE(Window->close());
  EXPECT_EQ(Said(), Texts{saveQuestion});
  EXPECT_TRUE(Window->isVisible());
  EXPECT_EQ(Settings.Written, std::vector<RecordingSettings::Entry>());
  Key(Qt::Key_Y);
  EXPECT_EQ(Box->Text(), "xy");
}

TEST_F(OtchetWindowClosing, ThrowsTheChangesAwayOnNo) {
  Start();
  Enter("x");
  Answer(MessageAnswer::No);
  EXPECT_TRUE(Window->close());
  EXPECT_EQ(Settings.Written.size(), 7U);
  EXPECT_EQ(Outside.Files.Writes, 0);
}

TEST_F(OtchetWindowClosing, SavesOnYes) {
  Start();
  Enter("балка");
  Answer(MessageAnswer::Yes);
  Dialogs.ToSave = {{"/home/new", plainTextKind}};
  EXPECT_TRUE(Window->close());
  EXPECT_EQ(Outside.Files.Content["/home/new.txt"], "\xE1\xE0\xEB\xEA\xE0");
}

TEST_F(OtchetWindowClosing, KeepsTheWindowOpenWhereTheSavingFails) {
  Start();
  Enter("x");
  Answer(MessageAnswer::Yes);
  EXPECT_FALSE(Window->close());  // no name is given
  Outside.Files.Refused["/home/a.txt"] = ErrorNumber::PermissionDenied;
  Answer(MessageAnswer::Yes);
  Dialogs.ToSave = {{"/home/a.txt", plainTextKind}};
  EXPECT_FALSE(Window->close());
  EXPECT_EQ(Said(),
            (Texts{saveQuestion, saveQuestion, " Err # 70 Discription : Permission denied"}));
  EXPECT_TRUE(Window->isVisible());
  EXPECT_EQ(Box->Text(), "x");
}

TEST_F(OtchetWindowClosing, FollowsTheMenuEntry) {
  Start();
  Enter("x");
  Answer(MessageAnswer::Cancel);
  Trigger("mnuFileExit");
  EXPECT_TRUE(Window->isVisible());
  Answer(MessageAnswer::No);
  Trigger("mnuFileExit");
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(OtchetWindowClosing, EndsTheModalShowing) {
  Load();
  int refusals = 0;
  bool inFront = false;
  const OnceModal<OtchetWindow> user([&](OtchetWindow& window) {
    inFront = &window == Window.get() && window.isVisible() && window.isModal();
    Enter("x");
    Answer(MessageAnswer::Cancel);
    refusals += window.close() ? 0 : 1;
    Answer(MessageAnswer::No);
  });
  Window->ShowModal();
  EXPECT_TRUE(inFront);
  EXPECT_EQ(refusals, 1);
  EXPECT_FALSE(Window->isVisible());
  EXPECT_EQ(Said(), (Texts{saveQuestion, saveQuestion}));
}

TEST_F(OtchetWindowClosing, LeavesTheFormAndItsBoxInOrder) {
  Start();
  Enter("x");
  Window.reset();
  EXPECT_EQ(Box->Widget(), nullptr);
  Form->RTF_TextCommitted("y");
  Form->mnuFormatWordwrap_Click();
  Form->mnuFileExit_Click();
  Form->SBPanels[frmOtchetMain::messagePanel].SetCaption("gone");
  EXPECT_EQ(Box->Text(), "xy");
}

}  // namespace
}  // namespace trelonit::test
