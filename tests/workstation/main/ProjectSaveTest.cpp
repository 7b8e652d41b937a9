#include <deque>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

const std::string bytesBefore = "what was there before";

Message Cancelled() {
  return {"", "Сохранение отменено !", MessageStyle::Plain};
}

Message ReplaceQuestion() {
  return {"Переписать файл ?", "Такой файл уже существует! Заменить?", MessageStyle::QuestionYesNo};
}

class SaveCommand : public ::testing::Test {
 protected:
  bool Save(std::deque<std::string> names, std::deque<MessageAnswer> answers = {}) {
    desk.Outside.Dialogs.Names = std::move(names);
    desk.Outside.Messages.Answers = std::move(answers);
    return form.SaveParam_Click();
  }
  ProjectValues Saved() {
    EXPECT_TRUE(Save({projectPath}, {MessageAnswer::Yes}));
    desk.Outside.Messages.Answers.clear();
    return ValuesOf(Files().at(projectPath));
  }
  std::map<std::string, std::string>& Files() { return desk.Outside.Files.Content; }
  std::size_t DialogsShown() const { return desk.Outside.Dialogs.Requests.size(); }

  StartedDesk desk;
  frmMain& form = desk.Main;
  const int writesBefore = desk.Outside.Files.Writes;
};

TEST_F(SaveCommand, AsksForTheNameOfAProjectFile) {
  EXPECT_TRUE(Save({projectPath}));
  ASSERT_EQ(DialogsShown(), 1U);
  const FileDialogRequest& request = desk.Outside.Dialogs.Requests.front();
  EXPECT_EQ(request.Title, "Укажите имя нового файла сохранения параметров");
  EXPECT_EQ(request.Extension, "tsav");
  EXPECT_EQ(request.Filter, "trelo save files (*.tsav)|*.tsav");
}

TEST_F(SaveCommand, WritesANewFileWithoutAWord) {
  EXPECT_TRUE(Save({projectPath}));
  EXPECT_EQ(Files().at(projectPath), ProjectBytes(StartUpValues()));
  EXPECT_EQ(desk.Outside.Files.Writes, writesBefore + 1);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(SaveCommand, WithAKnownNameNeedsNoDialog) {
  EXPECT_TRUE(form.SaveProject(projectPath));
  EXPECT_EQ(Files().at(projectPath), ProjectBytes(StartUpValues()));
  EXPECT_EQ(DialogsShown(), 0U);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(SaveCommand, WithAKnownNameAsksBeforeItWritesAFileOver) {
  Files()[projectPath] = bytesBefore;
  EXPECT_FALSE(form.SaveProject(projectPath));
  EXPECT_EQ(desk.TakeMessages(), (Messages{ReplaceQuestion(), Cancelled()}));
  EXPECT_EQ(Files().at(projectPath), bytesBefore);
  desk.Outside.Messages.Answers = {MessageAnswer::Yes};
  EXPECT_TRUE(form.SaveProject(projectPath));
  EXPECT_EQ(desk.TakeMessages(), Messages{ReplaceQuestion()});
  EXPECT_EQ(Files().at(projectPath), ProjectBytes(StartUpValues()));
}

TEST_F(SaveCommand, TakesTheNameAsItStandsInTheDialog) {
  EXPECT_TRUE(Save({"/проекты/ферма"}));
  EXPECT_EQ(Files().count("/проекты/ферма"), 1U);
}

TEST_F(SaveCommand, IsCancelledWithTheDialog) {
  EXPECT_FALSE(Save({}));
  EXPECT_EQ(desk.TakeMessages(), Messages{Cancelled()});
  EXPECT_EQ(desk.Outside.Files.Writes, writesBefore);
  EXPECT_EQ(DialogsShown(), 1U);
}

TEST_F(SaveCommand, IsCancelledByANameOfLessThanFourCharacters) {
  // The second one has more than four bytes.
  for (const char* name : {"a.t", "фер", " ", "   ", "a"}) {
    Files()[name] = bytesBefore;
    EXPECT_FALSE(Save({name, projectPath}, {MessageAnswer::Yes})) << name;
    EXPECT_EQ(desk.TakeMessages(), Messages{Cancelled()}) << name;
    EXPECT_EQ(Files().at(name), bytesBefore);
  }
  EXPECT_EQ(desk.Outside.Files.Writes, writesBefore);
}

TEST_F(SaveCommand, TakesANameOfFourCharacters) {
  EXPECT_TRUE(Save({"фер1"}));
  EXPECT_EQ(Files().count("фер1"), 1U);
}

TEST_F(SaveCommand, ReplacesAFileAfterAYes) {
  Files()[projectPath] = bytesBefore;
  EXPECT_TRUE(Save({projectPath}, {MessageAnswer::Yes}));
  EXPECT_EQ(desk.TakeMessages(), Messages{ReplaceQuestion()});
  EXPECT_EQ(Files().at(projectPath), ProjectBytes(StartUpValues()));
  EXPECT_EQ(DialogsShown(), 1U);
}

TEST_F(SaveCommand, ShowsTheSameDialogAgainAfterANo) {
  Files()[projectPath] = bytesBefore;
  EXPECT_TRUE(Save({projectPath, "/projects/other.tsav"}, {MessageAnswer::No}));
  EXPECT_EQ(desk.TakeMessages(), Messages{ReplaceQuestion()});
  EXPECT_EQ(Files().at(projectPath), bytesBefore);
  EXPECT_EQ(Files().at("/projects/other.tsav"), ProjectBytes(StartUpValues()));
  ASSERT_EQ(DialogsShown(), 2U);
  EXPECT_EQ(desk.Outside.Dialogs.Requests.at(1).Title, desk.Outside.Dialogs.Requests.at(0).Title);
  EXPECT_EQ(desk.Outside.Dialogs.Requests.at(1).Filter, desk.Outside.Dialogs.Requests.at(0).Filter);
}

TEST_F(SaveCommand, AsksAgainAndAgainUntilAYes) {
  for (const char* name : {"/one.tsav", "/two.tsav", "/three.tsav"}) {
    Files()[name] = bytesBefore;
  }
  EXPECT_TRUE(Save({"/one.tsav", "/two.tsav", "/one.tsav", "/three.tsav"},
                   {MessageAnswer::No, MessageAnswer::No, MessageAnswer::No, MessageAnswer::Yes}));
  EXPECT_EQ(desk.TakeMessages(), Messages(4, ReplaceQuestion()));
  EXPECT_EQ(DialogsShown(), 4U);
  EXPECT_EQ(Files().at("/one.tsav"), bytesBefore);
  EXPECT_EQ(Files().at("/two.tsav"), bytesBefore);
  EXPECT_EQ(Files().at("/three.tsav"), ProjectBytes(StartUpValues()));
}

TEST_F(SaveCommand, TakesAnythingButAYesForANo) {
  Files()[projectPath] = bytesBefore;
  EXPECT_FALSE(Save({projectPath}, {MessageAnswer::Ok}));
  EXPECT_EQ(desk.TakeMessages(), (Messages{ReplaceQuestion(), Cancelled()}));
  EXPECT_EQ(Files().at(projectPath), bytesBefore);
}

TEST_F(SaveCommand, CanBeCancelledAfterANo) {
  Files()[projectPath] = bytesBefore;
  EXPECT_FALSE(Save({projectPath, ""}, {MessageAnswer::No, MessageAnswer::Yes}));
  EXPECT_EQ(desk.TakeMessages(), (Messages{ReplaceQuestion(), Cancelled()}));
  EXPECT_EQ(Files().at(projectPath), bytesBefore);
  EXPECT_EQ(desk.Outside.Files.Writes, writesBefore);
  EXPECT_EQ(DialogsShown(), 2U);
}

TEST_F(SaveCommand, TakesABlankAfterANoForACancel) {
  Files()[projectPath] = bytesBefore;
  EXPECT_FALSE(Save({projectPath, " "}, {MessageAnswer::No}));
  EXPECT_EQ(desk.TakeMessages(), (Messages{ReplaceQuestion(), Cancelled()}));
  EXPECT_EQ(desk.Outside.Files.Writes, writesBefore);
}

TEST_F(SaveCommand, TakesAlsoAShortNameAfterANo) {
  Files()[projectPath] = bytesBefore;
  EXPECT_TRUE(Save({projectPath, "ab"}, {MessageAnswer::No}));
  EXPECT_EQ(desk.TakeMessages(), Messages{ReplaceQuestion()});
  EXPECT_EQ(Files().at("ab"), ProjectBytes(StartUpValues()));
}

TEST_F(SaveCommand, WritesWhereTheFileSystemCannotTellWhatIsThere) {
  desk.Outside.Files.NoFileSystem = true;
  EXPECT_TRUE(Save({projectPath}));
  const Message notChecked{"IsThisFileExists",
                           "Can't create Scripting.FileSystemObject object ! File not checked !",
                           MessageStyle::Critical};
  EXPECT_EQ(desk.TakeMessages(), Messages{notChecked});
  EXPECT_EQ(Files().at(projectPath), ProjectBytes(StartUpValues()));
}

class RefusedSave : public SaveCommand, public ::testing::WithParamInterface<ErrorNumber> {};

TEST_P(RefusedSave, TellsTheReasonAndKeepsTheOldFile) {
  Files()[projectPath] = bytesBefore;
  desk.Outside.Files.Refused[projectPath] = GetParam();
  EXPECT_FALSE(Save({projectPath}, {MessageAnswer::Yes}));
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{ReplaceQuestion(), OpenFailure(RuntimeError(GetParam()).Description())}));
  EXPECT_EQ(Files().at(projectPath), bytesBefore);
  // The next attempt is not spoilt by this one.
  desk.Outside.Files.Refused.clear();
  EXPECT_EQ(Saved(), StartUpValues());
}

INSTANTIATE_TEST_SUITE_P(ForAllReasons, RefusedSave,
                         ::testing::Values(ErrorNumber::BadFileName, ErrorNumber::DeviceIoError,
                                           ErrorNumber::DiskFull, ErrorNumber::PermissionDenied,
                                           ErrorNumber::PathFileAccess, ErrorNumber::PathNotFound));

TEST_F(SaveCommand, TellsAReasonInTheWordsOfTheSystem) {
  desk.Outside.Files.Refused[projectPath] = ErrorNumber::DiskFull;
  EXPECT_FALSE(Save({projectPath}));
  const Message expected{"WriteApplParameters",
                         "Ошибка создания файла для записи ! err discription : \nDisk full",
                         MessageStyle::Critical};
  EXPECT_EQ(desk.TakeMessages(), Messages{expected});
}

/// Dialogs that cannot be shown.
class NoDialogs : public DialogService {
 public:
  std::string AskSaveName(const FileDialogRequest& /*request*/) override { Fail(); }
  std::string AskOpenName(const FileDialogRequest& /*request*/) override { Fail(); }

 private:
  [[noreturn]] static void Fail() { throw RuntimeError(ErrorNumber::PropertyNotSupported); }
};

TEST(ProjectCommands, EndWithTheirTailWhereTheDialogFails) {
  Desk desk;
  NoDialogs dialogs;
  const Services whole = desk.Outside.Bundle();
  const Services services{whole.Messages,  dialogs,          whole.Clipboard, whole.Settings,
                          whole.Registry,  whole.Automation, whole.Shell,     whole.Clock,
                          whole.Resources, whole.Files,      whole.Locale,    whole.ProgramFolder};
  frmMain form(services, {});
  form.Form_Load();
  EXPECT_FALSE(form.SaveParam_Click());
  EXPECT_FALSE(form.Restore_Click());
  const std::string description = "Object doesn't support this property or method";
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail("Save comand", 438, description),
                                           Tail("Restore comand", 438, description)}));
}

TEST_F(SaveCommand, TakesInputsThatAreNoNumbersForZero) {
  for (TextBox* box : {&form.txtLengthF, &form.txtHight, &form.txtLenOporn, &form.txtRy,
                       &form.txtNadegnost, &form.txtUsloviyaRabot}) {
    box->SetText("abc");
  }
  form.Steel = {.ModulYung = "abc", .DensitSteel = "abc", .LimitFlex = "abc"};
  const ProjectValues values = Saved();
  for (const std::size_t line : {lineLengthF, lineHight, lineLenOporn, lineRy, lineDensity,
                                 lineModulYung, lineLimitFlex, lineNadegnost, lineUsloviyaRabot}) {
    EXPECT_EQ(values.at(line - 1), "0") << line;
  }
}

TEST_F(SaveCommand, ReadsItsInputsWithCommaAndWithPoint) {
  form.txtLengthF.SetText("18,5");
  form.txtHight.SetText(" 2.25 ");
  const ProjectValues values = Saved();
  EXPECT_EQ(values.at(lineLengthF - 1), "18.5");
  EXPECT_EQ(values.at(lineHight - 1), "2.25");
}

TEST_F(SaveCommand, StoresEqualPanelsWhereNoEndPanelIsGiven) {
  for (const char* text : {"", "0", "abc"}) {
    form.txtLenOporn.SetText(text);
    EXPECT_EQ(Saved().at(lineLenOporn - 1), "2") << text;
  }
  form.txtLengthF.SetText("25");
  Choose(form.cmbPanelNum, "8");
  EXPECT_EQ(Saved().at(lineLenOporn - 1), "3.125");
  // The box itself is left alone.
  EXPECT_EQ(form.txtLenOporn.Text(), "abc");
}

TEST_F(SaveCommand, StoresAnEndPanelAsItStandsWhereOneIsGiven) {
  form.txtLenOporn.SetText("-1.5");
  EXPECT_EQ(Saved().at(lineLenOporn - 1), "-1.5");
}

TEST_F(SaveCommand, EndsWithItsTailWhereThePanelsCannotBeDividedOut) {
  form.txtLenOporn.SetText("");
  form.cmbPanelNum.SetText("0");
  EXPECT_FALSE(Save({projectPath}));
  EXPECT_EQ(desk.TakeMessages(), Messages{Tail("Save comand", 11, "Division by zero")});
  EXPECT_EQ(Files().count(projectPath), 0U);
}

TEST_F(SaveCommand, EndsWithItsTailWhereThereAreTooManyPanels) {
  form.cmbPanelNum.SetText("1E10");
  EXPECT_FALSE(Save({projectPath}));
  EXPECT_EQ(desk.TakeMessages(), Messages{Tail("Save comand", 6, "Overflow")});
}

TEST_F(SaveCommand, RoundsThePanelCountHalfToEven) {
  form.cmbPanelNum.SetText("10.5");
  EXPECT_EQ(Saved().at(linePanelNum - 1), "10");
  form.cmbPanelNum.SetText("11,5");
  EXPECT_EQ(Saved().at(linePanelNum - 1), "12");
}

TEST_F(SaveCommand, StoresTheSwitches) {
  form.chkProgib.SetChecked(true);
  Choose(form.cmbLenlim, "1 / 250");
  form.optBP.SetValue(false);
  form.optNP.SetValue(true);
  form.chkDinloadEnable.SetChecked(true);
  form.chkOwnWeight.SetChecked(true);
  form.tabMain.SetTab(2);
  form.imgDistForce_Click();
  form.chkAllPanels.SetChecked(true);
  form.optElementSection.Select(optionStoyka);
  const ProjectValues values = Saved();
  EXPECT_EQ(values.at(lineProgibOn - 1), "1");
  EXPECT_EQ(values.at(lineLenLim - 1), "1 / 250");
  EXPECT_EQ(values.at(lineProgibUpper - 1), "0");
  EXPECT_EQ(values.at(lineActiveGroup - 1), "4");
  EXPECT_EQ(values.at(lineDinloadOn - 1), "1");
  EXPECT_EQ(values.at(lineOwnWeightOn - 1), "1");
  EXPECT_EQ(values.at(lineAllPanelsOn - 1), "1");
  EXPECT_EQ(values.at(linePForceTool - 1), "0");
}

TEST_F(SaveCommand, StoresSchemeBracingAndSteel) {
  form.imgTreloType_Click(2);
  form.optUpPoyas.Select(4);
  form.optDownPoyas.Select(1);
  form.lblStillName.SetCaption("Сталь 09Г2С");
  form.txtRy.SetText("315,5");
  const ProjectValues values = Saved();
  EXPECT_EQ(values.at(lineTreloType - 1), "2");
  EXPECT_EQ(values.at(lineUpPoyasBrace - 1), "4");
  EXPECT_EQ(values.at(lineDownPoyasBrace - 1), "1");
  EXPECT_EQ(values.at(lineSteelName - 1), "Сталь 09Г2С");
  EXPECT_EQ(values.at(lineRy - 1), "315.5");
}

TEST_F(SaveCommand, StoresTheLoadsOfTheChords) {
  form.imgTreloType_Click(4);
  Choose(form.cmbPanelNum, "4");
  form.tabMain.SetTab(2);
  AddForce(form, 1, "1.5");
  AddForce(form, 4, "-2");
  form.imgDistForce_Click();
  AddForce(form, 3, "0.25");
  const ProjectValues values = Saved();
  EXPECT_EQ(values.at(lineUpPForce - 1), "0;1.5;0;0;-2");
  EXPECT_EQ(values.at(lineUpDistForce - 1), "0;0;0;0.25");
  EXPECT_EQ(values.at(lineDwnPForce - 1), "0;0");
  EXPECT_EQ(values.at(lineDwnDistForce - 1), "0");
}

TEST_F(SaveCommand, LeavesTheFormAsItIs) {
  form.tabMain.SetTab(2);
  AddForce(form, 2, "3");
  const LoadArrays loads = form.Model.Inputs.Loads;
  Saved();
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
  EXPECT_EQ(form.txtLengthF.Text(), "20");
  EXPECT_EQ(form.tabMain.Tab(), 2);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

}  // namespace
}  // namespace trelonit::test
