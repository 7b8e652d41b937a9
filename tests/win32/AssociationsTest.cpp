#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <shlobj.h>
#include <string>

#include "editor/associations/ModAss.h"
#include "platform/win32/ComAutomation.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/WindowsHeader.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"
#include "tests/win32/ErrorOf.h"
#include "tests/win32/WineOnly.h"
#include "workstation/dialogs/frmAbout.h"

namespace trelonit::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* viewerKey =
    "SOFTWARE\\Microsoft\\Internet Explorer\\View Source Editor\\Editor Name";

/// What a shortcut says, read by the system.
struct LinkContent {
  std::string Target;
  std::string Folder;
  std::string Description;
  std::string Icon;
  int Window = 0;
};

LinkContent ReadLink(const fs::path& path) {
  ComPointer<IShellLinkW> link;
  ComPointer<IPersistFile> file;
  if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                 reinterpret_cast<void**>(link.Place())))) {
    file = QueryFor<IPersistFile>(link.Get());
  }
  if (!file || FAILED(file->Load(path.c_str(), STGM_READ))) {
    ADD_FAILURE() << "the system cannot read the shortcut";
    return {};
  }
  LinkContent content;
  std::wstring text(MAX_PATH, L'\0');
  link->GetPath(text.data(), MAX_PATH, nullptr, SLGP_RAWPATH);
  content.Target = FromWide(text.c_str());
  link->GetWorkingDirectory(text.data(), MAX_PATH);
  content.Folder = FromWide(text.c_str());
  link->GetDescription(text.data(), MAX_PATH);
  content.Description = FromWide(text.c_str());
  int index = -1;
  link->GetIconLocation(text.data(), MAX_PATH, &index);
  EXPECT_EQ(index, 0);
  content.Icon = FromWide(text.c_str());
  link->GetShowCmd(&content.Window);
  return content;
}

/// The whole integration over the registry, the folders and the script host of a machine.
class Associations : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsWine()) {
      GTEST_SKIP() << "a user's file types are no ground for a test";
    }
    RemoveSourceViewer(registry);
    GiveTextFilesToSystem(registry, shell);
    RemoveSendToShortcut(files, shell);
  }
  void TearDown() override {
    if (IsWine()) {
      RemoveSourceViewer(registry);
      RemoveSendToShortcut(files, shell);
      GiveTextFilesToSystem(registry, shell);
    }
  }

  std::string Class(const std::string& key, const std::string& name = "") {
    return ReadRegistryText(registry, RegistryRoot::ClassesRoot, key, name).value_or("(none)");
  }
  std::string Viewer() {
    return ReadRegistryText(registry, RegistryRoot::LocalMachine, viewerKey, "").value_or("(none)");
  }
  std::string Program() { return shell.ProgramPath() + ".exe"; }

  EmbeddedResources resources;
  World world{resources};
  Win32Registry registry;
  ConsoleShell shell;
  ComAutomation automation;
  DiskFiles files;
  RegistryAssociations choices{{world.Messages, world.Dialogs, world.Clipboard, world.Settings,
                                registry, automation, shell, world.Clock, resources, files,
                                world.Locale, world.ProgramFolder}};
};

TEST_F(Associations, GiveTheTextFilesToThePad) {
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::System);
  GiveTextFilesToPad(registry, shell);
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Pad);
  const std::string command = Program() + " %1";
  EXPECT_EQ(Class(".txt"), "Quillet plain text");
  EXPECT_EQ(Class(".TXT"), "Quillet plain text");
  EXPECT_EQ(Class(".log"), "Quillet plain text");
  EXPECT_EQ(Class(".txt\\ShellNew", "NullFile"), "");
  EXPECT_EQ(Class("Quillet plain text\\shell\\open\\command"), command);
  EXPECT_EQ(Class("Quillet plain text\\DefaultIcon"), shell.SystemFolder() + "\\shell32.dll,-152");
  EXPECT_EQ(Class("regfile\\shell\\edit\\command"), command);
  EXPECT_EQ(Class("WSFFile\\Shell\\Edit\\Command"), command);
  EXPECT_EQ(Viewer(), Program());
}

TEST_F(Associations, GiveTheTextFilesBackToTheSystem) {
  GiveTextFilesToPad(registry, shell);
  GiveTextFilesToSystem(registry, shell);
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::System);
  EXPECT_EQ(Class(".log"), "txtfile");
  EXPECT_EQ(Class("inifile\\shell\\open\\command"), shell.SystemFolder() + "\\NOTEPAD.EXE %1");
}

TEST_F(Associations, FindTheProgramThatTheSystemStarts) {
  // The command that the registry holds is one that the system finds under this ending.
  GiveTextFilesToPad(registry, shell);
  const fs::path document = fs::temp_directory_path() / "trelonit.txt";
  std::ofstream(document) << "text";
  std::wstring found(MAX_PATH, L'\0');
  const auto status =
      reinterpret_cast<INT_PTR>(FindExecutableW(document.c_str(), nullptr, found.data()));
  fs::remove(document);
  EXPECT_GT(status, 32);
  EXPECT_EQ(fs::path(found.c_str()).filename(), fs::path(ToWide(Program())).filename());
}

TEST_F(Associations, TellAnotherOwner) {
  registry.SetValue(RegistryRoot::ClassesRoot, ".txt", "", std::string("Other.Document"));
  EXPECT_EQ(ReadTextOwner(registry), TextOwner::Other);
}

TEST_F(Associations, AddAndRemoveTheSourceViewer) {
  EXPECT_FALSE(HasSourceViewer(registry));
  AddSourceViewer(registry, shell);
  EXPECT_EQ(Viewer(), Program());
  RemoveSourceViewer(registry);
  EXPECT_FALSE(HasSourceViewer(registry));
  RemoveSourceViewer(registry);
}

TEST_F(Associations, LeaveAnotherSourceViewerInItsPlace) {
  registry.SetValue(RegistryRoot::LocalMachine, viewerKey, "", std::string("C:\\other.exe"));
  AddSourceViewer(registry, shell);
  EXPECT_EQ(Viewer(), "C:\\other.exe");
}

TEST_F(Associations, MakeAndRemoveAShortcutInTheSendToMenu) {
  const fs::path shortcut = ToWide(SendToShortcut(shell));
  EXPECT_EQ(shortcut.filename(), "Quillet.lnk");
  ASSERT_FALSE(fs::exists(shortcut));
  CreateSendToShortcut(automation, shell);
  ASSERT_TRUE(fs::exists(shortcut));
  const LinkContent link = ReadLink(shortcut);
  EXPECT_EQ(link.Target, Program());
  EXPECT_EQ(link.Folder, FromWide(fs::path(ToWide(Program())).parent_path().native()));
  EXPECT_EQ(link.Description, "A better note pad");
  EXPECT_EQ(link.Icon, Program());
  EXPECT_EQ(link.Window, SW_SHOWNORMAL);
  RemoveSendToShortcut(files, shell);
  EXPECT_FALSE(fs::exists(shortcut));
  RemoveSendToShortcut(files, shell);
}

TEST_F(Associations, AreAppliedAndReadAsOneChoice) {
  choices.Apply({.Owner = TextOwner::Pad, .SendTo = true, .SourceViewer = true});
  AssociationChoice present = choices.Present();
  EXPECT_EQ(present.Owner, TextOwner::Pad);
  EXPECT_TRUE(present.SendTo);
  EXPECT_TRUE(present.SourceViewer);
  choices.Apply({.Owner = TextOwner::System, .SendTo = false, .SourceViewer = false});
  present = choices.Present();
  EXPECT_EQ(present.Owner, TextOwner::System);
  EXPECT_FALSE(present.SendTo);
  EXPECT_FALSE(present.SourceViewer);
}

/// The machine's registry for a user who may change nothing but his own.
class UsersOnly : public Win32Registry {
 public:
  void SetValue(RegistryRoot root, const std::string& key, const std::string& name,
                const RegistryValue& value) override {
    Require(root);
    Win32Registry::SetValue(root, key, name, value);
  }
  void DeleteKey(RegistryRoot root, const std::string& key) override {
    Require(root);
    Win32Registry::DeleteKey(root, key);
  }

 private:
  static void Require(RegistryRoot root) {
    if (root != RegistryRoot::CurrentUser) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
  }
};

TEST_F(Associations, AreTheUsersOwnWithoutAnAdministratorsRights) {
  UsersOnly usersOnly;
  Services bundle{world.Messages, world.Dialogs, world.Clipboard, world.Settings,
                  usersOnly,      automation,    shell,           world.Clock,
                  resources,      files,         world.Locale,    world.ProgramFolder};
  RegistryAssociations users(bundle);
  users.Apply({.Owner = TextOwner::Pad, .SourceViewer = true});
  EXPECT_EQ(users.Present(), (AssociationChoice{.Owner = TextOwner::Pad, .SourceViewer = true}));
  EXPECT_EQ(ReadRegistryText(registry, RegistryRoot::CurrentUser,
                             "Software\\Classes\\Quillet plain text\\shell\\open\\command", ""),
            Program() + " %1");
  EXPECT_EQ(ReadRegistryText(registry, RegistryRoot::CurrentUser, viewerKey, ""), Program());
  EXPECT_EQ(Viewer(), "(none)");
  EXPECT_EQ(world.Messages.Shown.size(), 1U);
  users.Apply({.Owner = TextOwner::System});
  EXPECT_EQ(users.Present(), (AssociationChoice{.Owner = TextOwner::System}));
  // What the test has made of the user.
  for (const char* key :
       {".txt", ".log", "Quillet plain text", "inifile", "inffile", "batfile", "JSEFile", "JSFile",
        "scpfile", "VBEFile", "VBSFile", "WSFFile", "regfile"}) {
    registry.DeleteKey(RegistryRoot::CurrentUser, std::string("Software\\Classes\\") + key);
  }
}

}  // namespace

}  // namespace trelonit::test
