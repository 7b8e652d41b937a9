#include "platform/console/ConsoleServices.h"
#include "tests/editor/associations/AssocDesk.h"

namespace trelonit::test {
namespace {

class Assoc : public ::testing::Test, protected AssocDesk {
 protected:
  static Steps Together(Steps first, const Steps& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
  }
  static Steps ToPad() {
    return {
        R"(classes\.txt = Quillet plain text)",
        R"(classes\.TXT = Quillet plain text)",
        R"(classes\.txt\ShellNew : NullFile = )",
        R"(classes\Quillet plain text\shell\open\command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\Quillet plain text\DefaultIcon = C:\WINDOWS\system32\shell32.dll,-152)",
        R"(classes\.log = Quillet plain text)",
        R"(classes\inifile\shell\open\command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\inffile\shell\open\command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\batfile\shell\edit\command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\JSEFile\Shell\Edit\Command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\JSFile\Shell\Edit\Command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\scpfile\shell\open\command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\VBEFile\Shell\Edit\Command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\VBSFile\Shell\Edit\Command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\WSFFile\Shell\Edit\Command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(classes\regfile\shell\edit\command = C:\Program Files\Trelonit\trelonit.exe %1)",
        R"(machine\SOFTWARE\Microsoft\Internet Explorer\View Source Editor\Editor Name = )"
        R"(C:\Program Files\Trelonit\trelonit.exe)"};
  }
  static Steps ToSystem() {
    return {R"(classes\.txt = txtfile)",
            R"(classes\.log = txtfile)",
            R"(classes\inifile\shell\open\command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\inffile\shell\open\command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\batfile\shell\edit\command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\JSEFile\Shell\Edit\Command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\JSFile\Shell\Edit\Command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\scpfile\shell\open\command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\VBEFile\Shell\Edit\Command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\VBSFile\Shell\Edit\Command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\WSFFile\Shell\Edit\Command = C:\WINDOWS\system32\NOTEPAD.EXE %1)",
            R"(classes\regfile\shell\edit\command = C:\WINDOWS\system32\NOTEPAD.EXE %1)"};
  }
  static Steps Shortcut() {
    return {"create WScript.Shell",
            R"(CreateShortcut C:\Users\user\SendTo\Quillet.lnk)",
            R"(TargetPath = C:\Program Files\Trelonit\trelonit.exe)",
            R"(WorkingDirectory = C:\Program Files\Trelonit)",
            "WindowStyle = 1",
            R"(IconLocation = C:\Program Files\Trelonit\trelonit.exe,0)",
            "Description = A better note pad",
            "Save"};
  }
  static Steps AddedViewer() {
    return {R"(machine\SOFTWARE\Microsoft\Internet Explorer\View Source Editor\Editor Name = )"
            R"(C:\Program Files\Trelonit\trelonit.exe)"};
  }
  static Steps RemovedViewer() {
    return {
        R"(delete machine\SOFTWARE\Microsoft\Internet Explorer\View Source Editor\Editor Name)"};
  }
  static Steps RemovedShortcut() { return {R"(remove C:\Users\user\SendTo\Quillet.lnk)"}; }
};

TEST_F(Assoc, TellsThePadsOwnTypeFromTheSystems) {
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Other);
  PutClass(".txt", "Quillet plain text");
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Pad);
  PutClass(".txt", "txtfile");
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::System);
  PutClass(".txt", "another pad");
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Other);
}

TEST_F(Assoc, ReadsATypeWithItsTrailingZero) {
  PutClass(".txt", std::string("Quillet plain text\0", 19));
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Pad);
}

TEST_F(Assoc, TakesANumberForNoType) {
  registry.Put(RegistryRoot::ClassesRoot, ".txt", "", RegistryValue(std::uint32_t{1}));
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Other);
}

TEST(TextOwnership, IsReadFromTheCapitalsWhereARegistryKnowsCase) {
  MemoryRegistry registry;
  registry.Keys[{RegistryRoot::ClassesRoot, ".TXT"}][""] = std::string("Quillet plain text");
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Pad);
  registry.Keys[{RegistryRoot::ClassesRoot, ".txt"}][""] = std::string("txtfile");
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::System);
}

TEST_F(Assoc, GivesTheTextFilesToThePad) {
  GiveTextFilesToPad(registry, places);
  EXPECT_EQ(Done(), ToPad());
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Pad);
  EXPECT_TRUE(HasSourceViewer(registry));
}

TEST_F(Assoc, GivesTheTextFilesBackToTheSystem) {
  GiveTextFilesToPad(registry, places);
  Done();
  GiveTextFilesToSystem(registry, places);
  EXPECT_EQ(Done(), ToSystem());
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::System);
}

TEST_F(Assoc, PutsAShortcutIntoTheSendToMenu) {
  CreateSendToShortcut(scripts, places);
  EXPECT_EQ(Done(), Shortcut());
  EXPECT_EQ(world.Files.Content.count(shortcut), 1U);
}

TEST_F(Assoc, RaisesWhereTheScriptHostMakesNoShortcut) {
  scripts.GivesNothing = true;
  EXPECT_THROW(CreateSendToShortcut(scripts, places), RuntimeError);
  NoAutomation none;
  EXPECT_THROW(CreateSendToShortcut(none, places), RuntimeError);
}

TEST_F(Assoc, RemovesTheShortcutOnlyWhereThereIsOne) {
  RemoveSendToShortcut(world.Files, places);
  EXPECT_EQ(Done(), Steps{});
  world.Files.Content[shortcut] = "shortcut";
  RemoveSendToShortcut(world.Files, places);
  EXPECT_EQ(Done(), RemovedShortcut());
}

TEST_F(Assoc, AddsTheSourceViewerOnlyWhereThereIsNone) {
  AddSourceViewer(registry, places);
  EXPECT_EQ(Done(), AddedViewer());
  AddSourceViewer(registry, places);
  EXPECT_EQ(Done(), Steps{});
}

TEST_F(Assoc, LeavesAnotherSourceViewerInItsPlace) {
  PutSourceViewer("another.exe");
  AddSourceViewer(registry, places);
  EXPECT_EQ(Done(), Steps{});
}

TEST_F(Assoc, RemovesTheSourceViewerOnlyWhereThereIsOne) {
  RemoveSourceViewer(registry);
  EXPECT_EQ(Done(), Steps{});
  PutSourceViewer("another.exe");
  RemoveSourceViewer(registry);
  EXPECT_EQ(Done(), RemovedViewer());
  EXPECT_FALSE(HasSourceViewer(registry));
}

TEST_F(Assoc, OpensOnTheStateOfTheMachine) {
  PutClass(".txt", "txtfile");
  PutSourceViewer("another.exe");
  form.Form_Load();
  EXPECT_FALSE(form.Option1.Value());
  EXPECT_TRUE(form.Option2.Value());
  EXPECT_FALSE(form.ChSendto.Checked());
  EXPECT_TRUE(form.ChSC.Checked());
  EXPECT_FALSE(form.cmdApply.Enabled());

  PutClass(".txt", "Quillet plain text");
  RemoveSourceViewer(registry);
  world.Files.Content[shortcut] = "shortcut";
  form.Form_Load();
  EXPECT_TRUE(form.Option1.Value());
  EXPECT_FALSE(form.Option2.Value());
  EXPECT_TRUE(form.ChSendto.Checked());
  EXPECT_FALSE(form.ChSC.Checked());
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(Assoc, OpensWithNeitherOptionWhereAnotherProgramHasTheFiles) {
  PutClass(".txt", "another pad");
  form.Form_Load();
  EXPECT_FALSE(form.Option1.Value());
  EXPECT_FALSE(form.Option2.Value());
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(Assoc, TakesEverybodysClassWhereTheUsersOwnHasNoValue) {
  registry.Put(RegistryRoot::CurrentUser, "Software\\Classes\\.txt", "Content Type",
               std::string("text/plain"));
  EXPECT_EQ(associations.Present().Owner, TextOwner::Other);
  PutClass(".txt", "txtfile");
  EXPECT_EQ(associations.Present().Owner, TextOwner::System);
}

TEST_F(Assoc, SetsOneOptionAtMost) {
  form.Form_Load();
  form.Option1.SetValue(true);
  form.Option2.SetValue(true);
  EXPECT_FALSE(form.Option1.Value());
  form.Option1.SetValue(true);
  EXPECT_FALSE(form.Option2.Value());
}

TEST_F(Assoc, OffersToApplyOnlyWhileTheChoiceDiffers) {
  PutClass(".txt", "txtfile");
  form.Form_Load();
  form.Option1.SetValue(true);
  EXPECT_TRUE(form.cmdApply.Enabled());
  form.Option2.SetValue(true);
  EXPECT_FALSE(form.cmdApply.Enabled());
  form.ChSendto.SetChecked(true);
  EXPECT_TRUE(form.cmdApply.Enabled());
  form.ChSendto.SetChecked(false);
  EXPECT_FALSE(form.cmdApply.Enabled());
  form.ChSC.SetChecked(true);
  EXPECT_TRUE(form.cmdApply.Enabled());
  form.ChSC.SetChecked(false);
  EXPECT_FALSE(form.cmdApply.Enabled());
  EXPECT_EQ(Done(), Steps{});
}

TEST_F(Assoc, AppliesEverythingThatIsChosen) {
  PutClass(".txt", "txtfile");
  form.Form_Load();
  form.Option1.SetValue(true);
  form.ChSendto.SetChecked(true);
  form.ChSC.SetChecked(true);
  form.cmdApply_Click();
  EXPECT_EQ(Done(), Together(ToPad(), Shortcut()));
  EXPECT_FALSE(form.cmdApply.Enabled());
  EXPECT_TRUE(world.Messages.Shown.empty());

  form.Option2.SetValue(true);
  form.ChSendto.SetChecked(false);
  form.ChSC.SetChecked(false);
  form.cmdApply_Click();
  EXPECT_EQ(Done(), Together(Together(ToSystem(), RemovedShortcut()), RemovedViewer()));
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(Assoc, TakesTheSourceViewerBackWhereItsBoxIsCleared) {
  form.Form_Load();
  form.Option1.SetValue(true);
  form.cmdApply_Click();
  EXPECT_EQ(Done(), Together(ToPad(), RemovedViewer()));
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(Assoc, LeavesTheTextFilesOfAnotherProgramAlone) {
  PutClass(".txt", "another pad");
  form.Form_Load();
  form.ChSC.SetChecked(true);
  form.cmdApply_Click();
  EXPECT_EQ(Done(), AddedViewer());
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(Assoc, TellsAFailureAtAnyStepAndCanBeAppliedAgain) {
  const Steps all = Together(ToPad(), Shortcut());
  for (std::size_t failing = 1; failing <= all.size(); ++failing) {
    AssocDesk desk;
    desk.PutClass(".txt", "txtfile");
    desk.form.Form_Load();
    desk.form.Option1.SetValue(true);
    desk.form.ChSendto.SetChecked(true);
    desk.form.ChSC.SetChecked(true);
    desk.log.FailingStep = failing;
    desk.form.cmdApply_Click();
    const auto done = static_cast<std::ptrdiff_t>(failing - 1);
    EXPECT_EQ(desk.Done(), Steps(all.begin(), all.begin() + done));
    EXPECT_EQ(desk.world.Messages.Shown,
              std::vector{OtchetDesk::Failure("cmdApply_Click", ErrorNumber::DeviceIoError)});
    EXPECT_TRUE(desk.form.cmdApply.Enabled()) << failing;
    EXPECT_TRUE(desk.form.ChSendto.Checked());
    desk.form.cmdApply_Click();
    EXPECT_EQ(desk.Done(), all);
    EXPECT_FALSE(desk.form.cmdApply.Enabled()) << failing;
  }
}

TEST_F(Assoc, IsForTheUserAloneWithoutAnAdministratorsRights) {
  PutClass(".txt", "txtfile");
  registry.IsUsersOnly = true;
  form.Form_Load();
  EXPECT_TRUE(form.Option2.Value());
  form.Option1.SetValue(true);
  form.ChSC.SetChecked(true);
  form.cmdApply_Click();
  Steps forTheUser;
  for (const std::string& step : ToPad()) {
    const bool isClass = step.starts_with("classes");
    forTheUser.push_back((isClass ? "user\\Software\\Classes" : "user") +
                         step.substr(step.find('\\')));
  }
  EXPECT_EQ(Done(), forTheUser);
  const Message told{.Title = "Связь с файлами",
                     .Text =
                         "Прав администратора нет, поэтому выбор записан только для вас: у "
                         "других пользователей этого компьютера ничего не изменилось.",
                     .Style = MessageStyle::Information};
  EXPECT_EQ(world.Messages.Shown, std::vector{told});
  // What everybody has is still Notepad's; the user's own comes first.
  EXPECT_EQ(associations.Present(),
            (AssociationChoice{.Owner = TextOwner::Pad, .SourceViewer = true}));
  EXPECT_FALSE(form.cmdApply.Enabled());

  world.Messages.Shown.clear();
  form.Option2.SetValue(true);
  form.ChSC.SetChecked(false);
  form.cmdApply_Click();
  EXPECT_EQ(associations.Present(), (AssociationChoice{.Owner = TextOwner::System}));
  // The classes are the user's own by now, so that nothing was refused.
  EXPECT_EQ(world.Messages.Shown, std::vector<Message>{});
}

TEST_F(Assoc, TellsWhereAnotherUsersSourceViewerMayNotBeRemoved) {
  PutSourceViewer("C:\\other.exe");
  registry.IsUsersOnly = true;
  form.Form_Load();
  form.ChSC.SetChecked(false);
  form.cmdApply_Click();
  EXPECT_EQ(world.Messages.Shown,
            std::vector{OtchetDesk::Failure("cmdApply_Click", ErrorNumber::PermissionDenied)});
  EXPECT_TRUE(associations.Present().SourceViewer);
}

TEST_F(Assoc, WritesAClassThatTheUserHasAlreadyInItsPlace) {
  PutClass(".log", "txtfile");
  registry.Put(RegistryRoot::CurrentUser, "Software\\Classes\\.log", "", std::string("other"));
  associations.Apply({.Owner = TextOwner::System});
  Steps expected = ToSystem();
  expected[1] = R"(user\Software\Classes\.log = txtfile)";
  EXPECT_EQ(Done(), expected);
  EXPECT_EQ(world.Messages.Shown, std::vector<Message>{});
}

TEST_F(Assoc, OpensWithAMessageWhereTheMachineHasNoSuchPlaces) {
  NoRegistry none;
  RecordingShell bare;
  Services bundle{world.Messages, world.Dialogs, world.Clipboard,
                  world.Settings, none,          scripts,
                  bare,           world.Clock,   resources,
                  world.Files,    world.Locale,  world.ProgramFolder};
  RegistryAssociations nothing(bundle);
  frmAssoc opened(nothing, world.Messages);
  opened.Form_Load();
  EXPECT_EQ(world.Messages.Shown,
            std::vector{OtchetDesk::Failure("Form_Load", ErrorNumber::PropertyNotSupported)});
  EXPECT_FALSE(opened.cmdApply.Enabled());
  EXPECT_THROW(none.SetValue(RegistryRoot::ClassesRoot, ".txt", "", std::string()), RuntimeError);
  EXPECT_THROW(none.DeleteKey(RegistryRoot::ClassesRoot, ".txt"), RuntimeError);
}

TEST_F(Assoc, ClosesWithoutDoingAnything) {
  int unloads = 0;
  form.cmdCancel_Click();
  form.Unload = [&] { ++unloads; };
  form.Form_Load();
  form.Option1.SetValue(true);
  form.cmdCancel_Click();
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(Done(), Steps{});
}

TEST_F(Assoc, OffersEveryChoiceOnAMachineWithARegistry) {
  EXPECT_EQ(form.lblOwner.Caption(), "Текстовые файлы (.txt, .log) открывает");
  EXPECT_TRUE(form.ChSendto.Enabled());
  EXPECT_TRUE(form.ChSC.Enabled());
  EXPECT_FALSE(form.lblNoSendto.Visible());
  EXPECT_FALSE(form.lblNoSC.Visible());
}

}  // namespace
}  // namespace trelonit::test
