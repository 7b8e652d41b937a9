#include <functional>
#include <gtest/gtest.h>

#include "catalogue/RecordCoding.h"
#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

constexpr const char* dataPath = "/program/GOST profile.dat";
constexpr const char* indexPath = "/program/Index.ind";

std::string IndexRow(std::string_view name, Long first, Long last) {
  const auto bytes = EncodeIndexRecord({.Name = name, .FirstNum = first, .LastNum = last});
  return {bytes.begin(), bytes.end()};
}

Message Plain(const std::string& text) {
  return {"", text, MessageStyle::Plain};
}

/// What a user can still do with a form that came up without its catalogue: everything ends in a
/// message at worst.
void UseEverything(Desk& desk, frmMain& form) {
  for (Long scheme = 1; scheme <= 10; ++scheme) {
    form.imgTreloType_Click(scheme);
    form.cmbPanelNum_Click();
    form.tabMain.SetTab(2);
    form.tabMain.SetTab(0);
  }
  for (Long option = 1; option <= 5; ++option) {
    form.optElementSection.Select(option);
    form.imgProfileSecSelect_Click(option + 1);
  }
  form.cmbTypeProfile_Click();
  form.cmbSectType_Click();
  form.cmbGdist_Click();
  form.imgDistForce_Click();
  form.tglDwnPoyas.SetValue(true);
  form.chkAllPanels.SetChecked(true);
  form.cmdAddForce_Click();
  form.cmdClearLoads_Click();
  form.imgPForce_Click();
  form.chkOwnWeight.SetChecked(true);
  form.cmdCalculate_Click();
  form.chkOwnWeight.SetChecked(false);
  form.tmrRuningString_Timer();
  form.UserHelp_Click();
  desk.Outside.Dialogs.Names = {"/save.tsav", "/save.tsav"};
  form.SaveParam_Click();
  form.Restore_Click();
}

void ExpectUsable(Desk& desk, frmMain& form) {
  EXPECT_NO_THROW(UseEverything(desk, form));
  EXPECT_TRUE(desk.Outside.Files.Content.count("/save.tsav"));
}

TEST(StartWithoutCatalogue, TellsThatTheResourcesAreMissing) {
  Desk desk;
  desk.Resources.MissingBlocks = {102, 103};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), (Messages{Plain("Ошибка считывания из ресурсов "),
                                           Plain("Ошибка считывания из ресурсов "),
                                           Tail("Form_Load", 52, "Bad file name or number")}));
  EXPECT_FALSE(form.Model.ProfileTypes.IsAllocated());
  ExpectUsable(desk, form);
}

TEST(StartWithoutCatalogue, TellsThatTheFilesCannotBeWritten) {
  Desk desk;
  desk.Outside.Files.Refused = {{dataPath, ErrorNumber::DiskFull},
                                {indexPath, ErrorNumber::PermissionDenied}};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), (Messages{Plain("Ошибка создания файла данных профиля "),
                                           Plain("Ошибка создания файла данных профиля "),
                                           Tail("Form_Load", 52, "Bad file name or number")}));
  ExpectUsable(desk, form);
}

TEST(StartWithoutCatalogue, TellsThatTheFilesCannotBeRead) {
  Desk desk;
  desk.MakeAndLoad();
  desk.Outside.Files.Refused = {{indexPath, ErrorNumber::PermissionDenied}};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail("Form_Load", 70, "Permission denied")}));
  ExpectUsable(desk, form);
}

TEST(StartWithoutCatalogue, TellsThatThereIsNoFileSystem) {
  Desk desk;
  desk.Outside.Files.NoFileSystem = true;
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{Tail("Form_Load", 429, "ActiveX component can't create object")}));
  EXPECT_NO_THROW(UseEverything(desk, form));
}

TEST(StartWithoutCatalogue, TellsWhatIsWrongWithTheIndex) {
  const auto start = [](const std::string& index) {
    Desk desk;
    desk.Outside.Files.Content[indexPath] = index;
    frmMain& form = desk.MakeAndLoad();
    Messages messages = desk.TakeMessages();
    ExpectUsable(desk, form);
    return messages;
  };
  const Messages subscript{SubscriptTail("Form_Load")};
  const Messages overflow{Tail("Form_Load", 6, "Overflow")};
  EXPECT_EQ(start(""), subscript);
  // The first layout offers two standards.
  EXPECT_EQ(start(IndexRow("one", 1, 5)), subscript);
  EXPECT_EQ(start(IndexRow("one", 0, 5) + IndexRow("two", 6, 9)), subscript);
  EXPECT_EQ(start(IndexRow("one", 1, 0) + IndexRow("two", 6, 9)), subscript);
  EXPECT_EQ(start(IndexRow("one", 1, 2000000000) + IndexRow("two", 6, 9)), overflow);
  EXPECT_EQ(start(std::string(580, '\xFF')), subscript);
  // Ten standards with one size each, far behind the end of the data: all of them are empty.
  EXPECT_EQ(start(std::string(580, '\x7F')), Messages());
  EXPECT_EQ(start(std::string(58U * 40000U, '\0')), overflow);
}

TEST(StartWithoutCatalogue, StillTakesTheGeometry) {
  Desk desk;
  desk.Resources.MissingBlocks = {102, 103};
  frmMain& form = desk.MakeAndLoad();
  Choose(form.cmbPanelNum, "4");
  EXPECT_EQ(form.Model.Inputs.Loads.UpPForce.UpperBound(), 4);
  form.tabMain.SetTab(1);
  EXPECT_EQ(form.Model.Accepted.LengthF, 20);
  EXPECT_EQ(form.Model.Accepted.PanelNum, 4);
}

TEST(StartWithoutCatalogue, SkipsWhatWouldComeAfterIt) {
  Desk desk;
  desk.Resources.MissingBlocks = {102, 103};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(form.cmbPanelNum.Text(), "10");
  EXPECT_TRUE(form.cmbKatalog.List().empty());
  EXPECT_TRUE(form.cmbGdist.List().empty());
  EXPECT_EQ(form.imgPForce.Shown(), Picture());
  EXPECT_FALSE(form.Model.Inputs.Loads.UpPForce.IsAllocated());
  EXPECT_EQ(form.tmrRuningString.Interval(), 0);
}

TEST(StartWithoutPictures, TellsTheFirstThatIsMissing) {
  Desk desk;
  desk.Resources.MissingBitmaps = {101, 309};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), (Messages{BitmapTail("Form_Load", 101)}));
  ExpectUsable(desk, form);
}

TEST(StartWithoutPictures, KeepsTheCatalogueWhenOnlyALoadToolIsMissing) {
  Desk desk;
  desk.Resources.MissingIcons = {103};
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), (Messages{BitmapTail("Form_Load", 103)}));
  EXPECT_EQ(form.Model.ProfileTypes.UpperBound(), 22);
  EXPECT_EQ(form.cmbGdist.Text(), "4");
  ExpectUsable(desk, form);
}

TEST(StartAfterAFailure, AnswersToTheUser) {
  Desk desk;
  desk.Resources.MissingBlocks = {102, 103};
  frmMain& form = desk.MakeAndLoad();
  form.chkProgib.SetChecked(true);
  EXPECT_TRUE(form.cmbLenlim.Enabled());
  form.optUpPoyas.Select(4);
  EXPECT_EQ(form.Model.Inputs.UpPoyasBrace, 4);
  form.imgTreloType_Click(3);
  EXPECT_EQ(form.cmbPanelNum.List(), Numbers(2, 30));
}

TEST(StartWithAShortDataFile, LeavesTheMissingSizesWithoutAName) {
  Desk desk;
  desk.MakeAndLoad();
  desk.Outside.Files.Content[dataPath].resize(100U * 177U);
  frmMain& form = desk.MakeAndLoad();
  EXPECT_EQ(desk.TakeMessages(), Messages());
  // Of 121 equal angles 38 are left.
  EXPECT_NE(SizeName(form, 2, 38), "");
  EXPECT_EQ(SizeName(form, 2, 39), "");
  Choose(form.cmbTypeProfile, StandardName(form, 2));
  EXPECT_EQ(form.cmbSectType.List().size(), 121U);
  ExpectUsable(desk, form);
}

}  // namespace
}  // namespace trelonit::test
