#include <gtest/gtest.h>

#include "tests/catalogue/DataManagerDesk.h"

namespace trelonit {
namespace {

using test::MemoryDesk;
using test::NumberedFile;
using test::Told;

TEST(DataManagerOwnCatalogue, IsUnpackedAndLoadedWithoutADialog) {
  MemoryDesk desk;
  desk.Desk.Form.cmdOwnCatalogue_Click();
  EXPECT_EQ(desk.Desk.Counts(), "1/2698");
  EXPECT_EQ(desk.Desk.Form.DataPath, "/program/GOST profile.dat");
  EXPECT_EQ(desk.Desk.Form.Records[2698].Name.Trimmed(), "Тр230x100x8");
  EXPECT_TRUE(desk.Desk.World.Dialogs.Requests.empty());
  EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
}

TEST(DataManagerOwnCatalogue, IsTheOneThatTheUserHasChanged) {
  MemoryDesk desk;
  desk.Files.Content["/program/GOST profile.dat"] = NumberedFile(5);
  desk.Desk.Form.cmdOwnCatalogue_Click();
  EXPECT_EQ(desk.Desk.Counts(), "1/5");
}

TEST(DataManagerOwnCatalogue, TellsWhyItIsNotThere) {
  MemoryDesk desk;
  desk.Files.Refused["/program/GOST profile.dat"] = ErrorNumber::PermissionDenied;
  desk.Desk.Form.cmdOwnCatalogue_Click();
  EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{Told("Ошибка создания файла данных профиля ")});
  EXPECT_EQ(desk.Desk.Counts(), "0/0");
}

/// A manager over numbered records, L1 to L250.
class DataManagerBrowse : public ::testing::Test {
 protected:
  DataManagerBrowse() { desk.Load(); }
  std::string Find(const std::string& text) {
    form.txtFind.SetText(text);
    form.cmdFindNext_Click();
    return form.lblFound.Caption();
  }
  std::string GoTo(const std::string& text) {
    form.txtGoTo.SetText(text);
    form.cmdGoTo_Click();
    return form.lblFound.Caption();
  }

  MemoryDesk desk{NumberedFile(250)};
  frmDataManager& form = desk.Desk.Form;
};

TEST_F(DataManagerBrowse, FindsTheNextRecordByAPartOfItsName) {
  EXPECT_EQ(Find("24"), "");
  EXPECT_EQ(form.CurPos, 24);
  EXPECT_EQ(desk.Desk.Boxes(), test::NumberedBoxes(24));
  EXPECT_EQ(Find("24"), "");
  EXPECT_EQ(form.CurPos, 124);
  EXPECT_EQ(Find("24"), "");
  EXPECT_EQ(form.CurPos, 224);
}

TEST_F(DataManagerBrowse, FindsTheNeighbour) {
  EXPECT_EQ(Find("L24"), "");
  EXPECT_EQ(Find("25"), "");
  EXPECT_EQ(form.CurPos, 25);
}

TEST_F(DataManagerBrowse, GoesBackToTheFirstRecord) {
  EXPECT_EQ(GoTo("7"), "");
  EXPECT_EQ(GoTo("1"), "");
  EXPECT_EQ(form.CurPos, 1);
  form.GoToRecord(7);
  form.GoToRecord(1);
  EXPECT_EQ(form.CurPos, 1);
}

TEST(DataManagerBrowseOne, FindsTheOnlyRecordAndJudgesIt) {
  MemoryDesk desk{NumberedFile(1)};
  desk.Load();
  frmDataManager& form = desk.Desk.Form;
  form.txtFind.SetText("L1");
  form.cmdFindNext_Click();
  EXPECT_EQ(form.lblFound.Caption(), "Других записей с таким обозначением нет");
  EXPECT_EQ(form.lblHealth.Caption(),
            "Геометрия: такого стандарта в каталоге программы нет, проверить нечем.");
}

TEST_F(DataManagerBrowse, GoesOnFromTheBeginningAndSaysSo) {
  form.cmdLastpoz_Click();
  EXPECT_EQ(Find("L24"), "Поиск продолжен с начала");
  EXPECT_EQ(form.CurPos, 24);
}

TEST_F(DataManagerBrowse, SaysThatThereIsNoOtherOrNone) {
  EXPECT_EQ(Find("L199"), "");
  EXPECT_EQ(form.CurPos, 199);
  EXPECT_EQ(Find("L199"), "Других записей с таким обозначением нет");
  EXPECT_EQ(form.CurPos, 199);
  EXPECT_EQ(Find("L999"), "Такого обозначения нет");
  EXPECT_EQ(form.CurPos, 199);
  EXPECT_EQ(Find(" "), "");
}

TEST_F(DataManagerBrowse, GoesToARecordByItsNumber) {
  EXPECT_EQ(GoTo("250"), "");
  EXPECT_EQ(desk.Desk.Boxes(), test::NumberedBoxes(250));
  for (const char* none : {"251", "0", "-1", "x", "", "1e30"}) {
    EXPECT_EQ(GoTo(none), "Записи с таким номером нет") << none;
    EXPECT_EQ(form.CurPos, 250);
  }
  EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
}

TEST_F(DataManagerBrowse, DoesNothingBeforeAFileIsLoaded) {
  form.Form_Load();
  EXPECT_EQ(Find("L1"), "");
  EXPECT_EQ(GoTo("1"), "Записи с таким номером нет");
  EXPECT_EQ(desk.Desk.Counts(), "0/0");
  EXPECT_EQ(form.lblHealth.Caption(), "");
}

TEST_F(DataManagerBrowse, TellsOfOtherRecordsAndOfAnotherOne) {
  int records = 0;
  int current = 0;
  form.RecordsChanged = [&] { ++records; };
  form.CurrentChanged = [&] { ++current; };
  form.cmdForv_Click();
  EXPECT_EQ(current, 1);
  form.GoToRecord(2);
  EXPECT_EQ(current, 1) << "it is the present one";
  form.GoToRecord(7);
  EXPECT_EQ(current, 2);
  EXPECT_EQ(form.CurPos, 7);
  form.GoToRecord(251);
  EXPECT_EQ(form.CurPos, 7);
  EXPECT_EQ(records, 0);
  form.cmdEditCurrent_Click();
  EXPECT_EQ(records, 1);
  desk.Load();
  EXPECT_EQ(records, 2);
  desk.Check();
  EXPECT_EQ(records, 3);
}

TEST(DataManagerHealth, FollowsTheBoxesAsTheyAreTyped) {
  MemoryDesk desk;
  frmDataManager& form = desk.Desk.Form;
  EXPECT_EQ(form.lblHealth.Caption(), "");
  form.cmdOwnCatalogue_Click();
  EXPECT_EQ(form.lblHealth.Caption(), "Геометрия: A, Jy и Jz сходятся с размерами.");
  EXPECT_EQ(form.lblHealth.ForeColor(), colorWindowText);
  // The area of L25x16x3 is 1.16 cm2.
  form.Text[9].SetText("1.61");
  EXPECT_TRUE(form.lblHealth.Caption().starts_with("Геометрия: A = 1.61 см², по размерам 1.16"))
      << form.lblHealth.Caption();
  EXPECT_EQ(form.lblHealth.ForeColor(), colorRed);
  form.Text[2].SetText("своя таблица");
  EXPECT_EQ(form.lblHealth.Caption(),
            "Геометрия: такого стандарта в каталоге программы нет, проверить нечем.");
  form.cmdForv_Click();
  EXPECT_EQ(form.lblHealth.ForeColor(), colorWindowText);
}

TEST(DataManagerHealth, KnowsTheLastStandardToo) {
  MemoryDesk desk;
  frmDataManager& form = desk.Desk.Form;
  form.cmdOwnCatalogue_Click();
  form.cmdLastpoz_Click();
  EXPECT_EQ(form.lblHealth.Caption(), "Геометрия: A, Jy и Jz сходятся с размерами.");
}

}  // namespace
}  // namespace trelonit
