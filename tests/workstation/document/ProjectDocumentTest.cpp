#include <gtest/gtest.h>

#include "tests/workstation/document/DocumentWorld.h"

namespace trelonit::test {
namespace {

class Document : public ::testing::Test {
 protected:
  /// A project of this span on the disk.
  std::string MakeProject(const std::string& name, const std::string& span) const {
    Session session(disk);
    session.Type(span);
    EXPECT_TRUE(session.Main.ReplaceProject(disk.In(name)));
    return disk.In(name);
  }
  static bool Asked(const std::vector<std::string>& texts) {
    return texts.size() == 1 && texts[0].find("изменен и не сохранен") != std::string::npos;
  }

  UserDisk disk;
};

TEST_F(Document, OfAnUntouchedStartIsNoneAndAsksNothing) {
  Session session(disk);
  EXPECT_EQ(session.Document->Caption(), "Новый проект");
  EXPECT_FALSE(session.Document->IsModified());
  EXPECT_TRUE(session.Document->MayLeave());
  EXPECT_EQ(session.TakeTexts(), std::vector<std::string>());
}

TEST_F(Document, IsModifiedByAChangeAndNotByTakingItBack) {
  Session session(disk);
  session.Type("24");
  EXPECT_TRUE(session.Document->IsModified());
  session.Type("20");
  EXPECT_FALSE(session.Document->IsModified());
}

TEST_F(Document, IsNotModifiedByLookingAtItOrByACalculation) {
  Session session(disk);
  session.Main.chkOwnWeight.SetChecked(true);
  ASSERT_TRUE(session.Main.ReplaceProject(disk.In("a.tsav")));
  session.Main.tabMain.SetTab(2);
  session.Main.imgDistForce_Click();
  session.Main.optElementSection.Select(3);
  session.Main.cmdCalculate_Click();
  session.Document->Note();
  EXPECT_TRUE(session.Main.Model.OwnWeight.Added);
  EXPECT_FALSE(session.Document->IsModified());
}

TEST_F(Document, SavesToItsFileWithoutAQuestion) {
  const std::string file = MakeProject("a.tsav", "24");
  Session session(disk);
  ASSERT_TRUE(session.Document->Open(file));
  EXPECT_EQ(session.Document->Caption(), "a.tsav");
  EXPECT_FALSE(session.Document->IsModified());
  session.Type("30");
  EXPECT_TRUE(session.Document->mnuSave_Click());
  EXPECT_FALSE(session.Document->IsModified());
  EXPECT_EQ(session.TakeTexts(), std::vector<std::string>());
  EXPECT_TRUE(session.Outside.Dialogs.Requests.empty());
  Session next(disk);
  EXPECT_TRUE(next.Document->Open(file));
  EXPECT_EQ(next.Main.txtLengthF.Text(), "30");
}

TEST_F(Document, WithoutAFileAsksForItsName) {
  Session session(disk);
  session.Type("30");
  session.Outside.Dialogs.Names = {disk.In("b.tsav")};
  EXPECT_TRUE(session.Document->mnuSave_Click());
  EXPECT_EQ(session.Document->File(), disk.In("b.tsav"));
  EXPECT_FALSE(session.Document->IsModified());
  session.Outside.Dialogs.Names = {disk.In("c.tsav")};
  EXPECT_TRUE(session.Document->mnuSaveAs_Click());
  EXPECT_EQ(session.Document->Caption(), "c.tsav");
}

TEST_F(Document, AsksBeforeItsChangesAreLost) {
  const std::string other = MakeProject("other.tsav", "42");
  Session session(disk);
  session.Type("30");
  session.Outside.Messages.Answers = {MessageAnswer::Cancel};
  EXPECT_FALSE(session.Document->MayLeave());
  EXPECT_TRUE(Asked(session.TakeTexts()));
  session.Outside.Messages.Answers = {MessageAnswer::Cancel};
  EXPECT_FALSE(session.Document->Open(other));
  EXPECT_TRUE(Asked(session.TakeTexts()));
  EXPECT_EQ(session.Main.txtLengthF.Text(), "30");
  session.Outside.Messages.Answers = {MessageAnswer::No};
  EXPECT_TRUE(session.Document->Open(other));
  EXPECT_TRUE(Asked(session.TakeTexts()));
  EXPECT_EQ(session.Main.txtLengthF.Text(), "42");
  EXPECT_FALSE(session.Document->IsModified());
}

TEST_F(Document, YesSavesAndOnlyThenLeaves) {
  Session session(disk);
  session.Type("30");
  // The dialog for the name is cancelled.
  session.Outside.Messages.Answers = {MessageAnswer::Yes};
  EXPECT_FALSE(session.Document->MayLeave());
  session.TakeTexts();
  session.Outside.Messages.Answers = {MessageAnswer::Yes};
  session.Outside.Dialogs.Names = {disk.In("a.tsav")};
  EXPECT_TRUE(session.Document->MayLeave());
  EXPECT_TRUE(disk.Has("a.tsav"));
}

TEST_F(Document, ThatCannotBeWrittenStaysModified) {
  Session session(disk);
  session.Type("30");
  EXPECT_FALSE(session.Main.ReplaceProject(disk.In("missing/a.tsav")));
  EXPECT_TRUE(session.Document->IsModified());
  EXPECT_EQ(session.Document->File(), "");
}

TEST_F(Document, RemembersTheLastFilesOnce) {
  Session session(disk);
  for (int number = 1; number <= 10; ++number) {
    session.Main.ReplaceProject(disk.In(std::to_string(number) + ".tsav"));
  }
  session.Main.ReplaceProject(disk.In("5.tsav"));
  const std::vector<std::string> names = session.Document->RecentNames();
  ASSERT_EQ(names.size(), 8U);
  EXPECT_EQ(names[0], disk.In("5.tsav"));
  EXPECT_EQ(names[1], disk.In("10.tsav"));
  EXPECT_EQ(names[7], disk.In("3.tsav"));
  Session next(disk, &session.Outside.Settings);
  EXPECT_EQ(next.Document->RecentNames(), names);
}

TEST_F(Document, ForgetsALastFileThatIsGone) {
  Session session(disk);
  session.Main.ReplaceProject(disk.In("a.tsav"));
  session.Main.ReplaceProject(disk.In("b.tsav"));
  std::filesystem::remove(disk.In("a.tsav"));
  EXPECT_FALSE(session.Document->Open(disk.In("a.tsav")));
  EXPECT_EQ(session.Document->RecentNames(), std::vector<std::string>{disk.In("b.tsav")});
  EXPECT_EQ(session.Document->File(), disk.In("b.tsav"));
}

TEST_F(Document, ThatAnotherProgramHasOpenIsReadOnly) {
  const std::string file = MakeProject("a.tsav", "24");
  auto first = std::make_unique<Session>(disk);
  ASSERT_TRUE(first->Document->Open(file));
  EXPECT_FALSE(first->Document->IsReadOnly());
  Session second(disk);
  EXPECT_TRUE(second.Document->Open(file));
  EXPECT_TRUE(second.Document->IsReadOnly());
  EXPECT_EQ(second.Document->Caption(), "a.tsav (только чтение)");
  const std::vector<std::string> texts = second.TakeTexts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find("уже открыт в другом окне"), std::string::npos);

  // Its changes go to another file; the first program's file is not for it to write.
  const std::string before = disk.Content("a.tsav");
  second.Type("33");
  second.Outside.Dialogs.Names = {file};
  second.Outside.Messages.Answers = {MessageAnswer::Yes};
  EXPECT_FALSE(second.Document->mnuSave_Click());
  EXPECT_EQ(disk.Content("a.tsav"), before);
  EXPECT_TRUE(second.Document->IsModified());
  second.Outside.Dialogs.Names = {disk.In("b.tsav")};
  EXPECT_TRUE(second.Document->mnuSave_Click());
  EXPECT_FALSE(second.Document->IsReadOnly());
  EXPECT_EQ(second.Document->Caption(), "b.tsav");

  // Once the first one has ended, the file is free.
  first.reset();
  Session third(disk);
  EXPECT_TRUE(third.Document->Open(file));
  EXPECT_FALSE(third.Document->IsReadOnly());
}

TEST_F(Document, IsKnownByEveryNameOfItsFile) {
  const std::string file = MakeProject("a.tsav", "24");
  std::filesystem::create_symlink(file, disk.In("program") + "/link.tsav");
  Session first(disk);
  first.Document->Open(file);
  Session second(disk);
  second.Document->Open((std::filesystem::path(disk.In("program")) / "link.tsav").string());
  EXPECT_TRUE(second.Document->IsReadOnly());
}

TEST_F(Document, OpenedAgainInItsOwnProgramIsNoOthers) {
  const std::string file = MakeProject("a.tsav", "24");
  Session session(disk);
  session.Document->Open(file);
  session.Document->Open(file);
  EXPECT_FALSE(session.Document->IsReadOnly());
  EXPECT_EQ(session.TakeTexts(), std::vector<std::string>());
}

TEST_F(Document, OnAMachineWithoutAStateFolderOpensAndSaves) {
  disk.Put("state", "a file where the folder should be");
  const std::string file = MakeProject("a.tsav", "24");
  Session session(disk);
  EXPECT_TRUE(session.Document->Open(file));
  EXPECT_FALSE(session.Document->IsReadOnly());
  session.Type("30");
  session.Document->KeepRecoveryCopy();
  EXPECT_TRUE(session.Document->mnuSave_Click());
  EXPECT_FALSE(session.Document->OfferRecovery());
}

TEST_F(Document, TellsItsWindowWheneverItIsNoted) {
  Session session(disk);
  int told = 0;
  session.Document->Changed = [&told] { ++told; };
  session.Type("30");
  EXPECT_EQ(told, 1);
  session.Document->Changed = nullptr;
}

}  // namespace
}  // namespace trelonit::test
