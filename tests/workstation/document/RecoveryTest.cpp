#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/workstation/document/DocumentWorld.h"

namespace trelonit::test {
namespace {

class Recovery : public ::testing::Test {
 protected:
  /// A program with a saved project and a change beyond it that ended by a crash.
  void CrashWithAChange() {
    Session session(disk);
    session.Main.chkOwnWeight.SetChecked(true);
    ASSERT_TRUE(session.Main.ReplaceProject(disk.In("Ферма 30.tsav")));
    session.Type("33,50");
    session.Main.tabMain.SetTab(2);
    session.Main.cmdCalculate_Click();
    left = session.Main.State();
    session.Document->KeepRecoveryCopy();
    session.Crash(disk);
    ASSERT_TRUE(disk.Has("state/1.recovery"));
  }

  UserDisk disk;
  DesignState left;
};

TEST_F(Recovery, GivesTheDesignBackAsItStood) {
  CrashWithAChange();
  Session next(disk);
  next.Outside.Messages.Answers = {MessageAnswer::Yes};
  EXPECT_TRUE(next.Document->OfferRecovery());
  const std::vector<std::string> texts = next.TakeTexts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find("Ферма 30.tsav, 02.01.2026 03:04"), std::string::npos) << texts[0];
  EXPECT_EQ(next.Main.txtLengthF.Text(), "33,50");
  EXPECT_TRUE(SameDesign(next.Main.State(), left));
  // What a project file does not hold.
  EXPECT_TRUE(next.Main.Model.OwnWeight.Added);
  EXPECT_EQ(next.Main.Model.OwnWeight.PerMetre, left.OwnWeight.PerMetre);
  EXPECT_EQ(next.Document->File(), disk.In("Ферма 30.tsav"));
  EXPECT_TRUE(next.Document->IsModified());
  // Saved, it leaves nothing to offer.
  EXPECT_TRUE(next.Document->mnuSave_Click());
  EXPECT_FALSE(disk.Has("state/1.recovery"));
}

TEST_F(Recovery, IsOfferedAgainAfterASecondCrash) {
  CrashWithAChange();
  Session next(disk);
  next.Outside.Messages.Answers = {MessageAnswer::Yes};
  ASSERT_TRUE(next.Document->OfferRecovery());
  next.Crash(disk);
  Session third(disk);
  third.Outside.Messages.Answers = {MessageAnswer::Yes};
  EXPECT_TRUE(third.Document->OfferRecovery());
  EXPECT_EQ(third.Main.txtLengthF.Text(), "33,50");
}

TEST_F(Recovery, RefusedIsGoneAndPutOffIsOfferedAgain) {
  CrashWithAChange();
  {
    Session next(disk);
    next.Outside.Messages.Answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(next.Document->OfferRecovery());
    EXPECT_EQ(next.Main.txtLengthF.Text(), "20");
  }
  EXPECT_TRUE(disk.Has("state/1.recovery"));
  Session next(disk);
  next.Outside.Messages.Answers = {MessageAnswer::No};
  EXPECT_FALSE(next.Document->OfferRecovery());
  EXPECT_FALSE(disk.Has("state/1.recovery"));
}

TEST_F(Recovery, OfAProgramAtWorkIsNotOffered) {
  Session first(disk);
  first.Type("30");
  first.Document->KeepRecoveryCopy();
  Session second(disk);
  EXPECT_FALSE(second.Document->OfferRecovery());
  EXPECT_EQ(second.TakeTexts(), std::vector<std::string>());
  // They keep their copies apart.
  second.Type("40");
  second.Document->KeepRecoveryCopy();
  EXPECT_TRUE(disk.Has("state/1.recovery"));
  EXPECT_TRUE(disk.Has("state/2.recovery"));
}

TEST_F(Recovery, LeavesNothingAfterAnOrderlyEnd) {
  {
    Session session(disk);
    session.Type("30");
    session.Document->KeepRecoveryCopy();
    EXPECT_TRUE(disk.Has("state/1.recovery"));
  }
  EXPECT_FALSE(disk.Has("state/1.recovery"));
  EXPECT_FALSE(disk.Has("state/1.running"));
}

TEST_F(Recovery, KeepsNothingWhereNothingWouldBeLost) {
  Session session(disk);
  session.Document->KeepRecoveryCopy();
  EXPECT_FALSE(disk.Has("state/1.recovery"));
  session.Type("30");
  session.Document->KeepRecoveryCopy();
  session.Type("20");
  session.Document->KeepRecoveryCopy();
  EXPECT_FALSE(disk.Has("state/1.recovery"));
}

TEST_F(Recovery, ThatIsDamagedIsToldOnceAndPutAside) {
  CrashWithAChange();
  const std::string whole = disk.Content("state/1.recovery");
  for (const std::string& damaged :
       {whole.substr(0, whole.size() / 2), std::string(), std::string("abc"),
        std::string(100000, '\n'), whole + "more", whole.substr(1)}) {
    disk.Put("state/1.recovery", damaged);
    Session next(disk);
    EXPECT_FALSE(next.Document->OfferRecovery());
    const std::vector<std::string> texts = next.TakeTexts();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_NE(texts[0].find(disk.In("state/1.damaged")), std::string::npos) << texts[0];
    EXPECT_EQ(disk.Content("state/1.damaged"), damaged);
    EXPECT_FALSE(next.Document->OfferRecovery());
    EXPECT_EQ(next.TakeTexts(), std::vector<std::string>());
    EXPECT_EQ(next.Main.txtLengthF.Text(), "20");
  }
}

TEST_F(Recovery, TellsEveryChangedByteFromTheWhole) {
  CrashWithAChange();
  const std::string whole = disk.Content("state/1.recovery");
  Session reader(disk);
  const auto read = [&](const std::string& bytes) {
    return ReadRecovery(bytes, reader.Main.Model.ProfileTypes, PointLocale());
  };
  ASSERT_TRUE(read(whole).has_value());
  for (std::size_t place = 0; place < whole.size(); place += 7) {
    std::string damaged = whole;
    damaged[place] = static_cast<char>(damaged[place] ^ 1);
    EXPECT_FALSE(read(damaged).has_value()) << place;
  }
}

TEST_F(Recovery, OfAProjectThatIsOpenElsewhereIsReadOnly) {
  CrashWithAChange();
  Session first(disk);
  first.Document->Open(disk.In("Ферма 30.tsav"));
  Session next(disk);
  next.Outside.Messages.Answers = {MessageAnswer::Yes};
  EXPECT_TRUE(next.Document->OfferRecovery());
  EXPECT_TRUE(next.Document->IsReadOnly());
  EXPECT_EQ(next.TakeTexts().size(), 2U);
}

RC_GTEST_PROP(RecoveryText, OfAnyBytesIsNone, ()) {
  RC_ASSERT(!ReadRecovery(*rc::gen::string<std::string>(), ProfileTypeArray(), PointLocale()));
}

RC_GTEST_PROP(RecoveryText, ReadsBackWhatItWrote, ()) {
  static const UserDisk disk;
  static Session session(disk);
  RecoveryCopy copy{.State = session.Main.State(),
                    .File = *rc::gen::string<std::string>(),
                    .Time = "01.02.2026 03:04"};
  copy.State.Texts.Hight = *rc::gen::string<std::string>();
  copy.State.OwnWeight = {.Added = *rc::gen::arbitrary<bool>(), .PerMetre = 0.0125};
  if (*rc::gen::arbitrary<bool>()) {
    copy.State.OwnWeightInside = 0.5;
  }
  std::erase(copy.File, '\n');
  std::erase(copy.State.Texts.Hight, '\n');
  const auto read = ReadRecovery(RecoveryText(copy, CommaLocale()), session.Main.Model.ProfileTypes,
                                 CommaLocale());
  RC_ASSERT(read.has_value());
  RC_ASSERT(read->State == copy.State);
  RC_ASSERT(read->File == copy.File);
  RC_ASSERT(read->Time == copy.Time);
}

TEST_F(Recovery, IsWrittenOnlyWhereSomethingHasChangedSince) {
  Session session(disk);
  session.Type("30");
  session.Document->KeepRecoveryCopy();
  // Whoever looks sees whether it is written anew.
  disk.Put("state/1.recovery", "untouched");
  session.Document->KeepRecoveryCopy();
  EXPECT_EQ(disk.Content("state/1.recovery"), "untouched");
  session.Type("31");
  session.Document->KeepRecoveryCopy();
  EXPECT_NE(disk.Content("state/1.recovery"), "untouched");
}

}  // namespace
}  // namespace trelonit::test
