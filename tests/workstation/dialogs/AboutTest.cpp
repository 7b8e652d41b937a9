#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"
#include "workstation/dialogs/frmAbout.h"

namespace trelonit::test {
namespace {

using namespace std::string_literals;

constexpr const char* toolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* locationKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

const Message unavailable{"", "System Information Is Unavailable At This Time",
                          MessageStyle::Plain};

/// The window in a world whose registry the test fills. Every key that was opened is closed in the
/// end.
class About : public ::testing::Test {
 protected:
  ~About() override { EXPECT_EQ(outside.Registry.Opened, outside.Registry.Closed); }

  void Put(const std::string& key, const std::string& name, RegistryValue value) {
    outside.Registry.Keys[{RegistryRoot::LocalMachine, key}][name] = std::move(value);
  }
  std::optional<std::string> Read() {
    return ReadRegistryText(outside.Registry, RegistryRoot::LocalMachine, "key", "name");
  }
  /// What the button started and said.
  std::pair<std::vector<std::string>, Messages> Press() {
    frmAbout(outside.Bundle()).cmdSysInfo_Click();
    return {outside.Shell.Started, outside.Messages.Shown};
  }
  using Outcome = std::pair<std::vector<std::string>, Messages>;

  PartialResources resources;
  World outside{resources};
};

TEST_F(About, TellsTheProgramItsVersionAndItsPurpose) {
  resources.About = "Purpose.";
  frmAbout form(outside.Bundle());
  form.Form_Load();
  EXPECT_EQ(form.Form.Caption(), "About Трелонит");
  EXPECT_EQ(form.lblTitle.Caption(), "Трелонит");
  EXPECT_EQ(form.lblVersion.Caption(), "Версия 1.0.0");
  EXPECT_EQ(form.lblDescription.Caption(), "Purpose.");
}

TEST_F(About, OpensWithoutASentenceOnItsPurpose) {
  resources.MissingStrings = {101};
  frmAbout form(outside.Bundle());
  form.Form_Load();
  EXPECT_EQ(form.lblTitle.Caption(), "Трелонит");
  EXPECT_EQ(form.lblDescription.Caption(), "");
  EXPECT_TRUE(outside.Messages.Shown.empty());
}

TEST_F(About, IsUnloadedByItsButton) {
  frmAbout form(outside.Bundle());
  EXPECT_NO_THROW(form.cmdOK_Click());
  int unloaded = 0;
  form.Unload = [&unloaded] { ++unloaded; };
  form.cmdOK_Click();
  EXPECT_EQ(unloaded, 1);
}

TEST_F(About, ReadsATextWithoutItsTrailingZeroCharacter) {
  Put("key", "name", "C:\\tool.exe\0"s);
  EXPECT_EQ(Read(), "C:\\tool.exe");
  Put("key", "name", "C:\\tool.exe"s);
  EXPECT_EQ(Read(), "C:\\tool.exe");
  Put("key", "name", "a\0b\0\0"s);
  EXPECT_EQ(Read(), "a\0b\0"s);
  Put("key", "name", ""s);
  EXPECT_EQ(Read(), "");
}

TEST_F(About, ReadsADoubleWordAsHexadecimalDigits) {
  for (const auto& [value, text] : std::vector<std::pair<std::uint32_t, std::string>>{
           {0, "&h0"}, {10, "&hA"}, {4096, "&h1000"}, {0xFFFFFFFFU, "&hFFFFFFFF"}}) {
    Put("key", "name", value);
    EXPECT_EQ(Read(), text);
  }
}

TEST_F(About, ReadsNothingThatIsNotThere) {
  EXPECT_EQ(Read(), std::nullopt);
  Put("key", "other", "x"s);
  EXPECT_EQ(Read(), std::nullopt);
  EXPECT_EQ(outside.Registry.Opened, 1);
}

TEST_F(About, ReadsOnlyTheRootThatItIsTold) {
  outside.Registry.Keys[{RegistryRoot::CurrentUser, "key"}]["name"] = "x"s;
  EXPECT_EQ(Read(), std::nullopt);
  EXPECT_EQ(ReadRegistryText(outside.Registry, RegistryRoot::CurrentUser, "key", "name"), "x");
}

TEST_F(About, ReadsNoTextThatIsLongerThanItsBuffer) {
  Put("key", "name", std::string(1023, 'x') + "\0"s);
  EXPECT_EQ(Read(), std::string(1023, 'x'));
  Put("key", "name", std::string(1024, 'x'));
  EXPECT_EQ(Read(), std::string(1024, 'x'));
  Put("key", "name", std::string(1024, 'x') + "\0"s);
  EXPECT_EQ(Read(), std::nullopt);
  EXPECT_EQ(outside.Registry.Opened, 3);
}

TEST_F(About, CountsCharactersAgainstTheBuffer) {
  std::string path;
  for (int place = 0; place < 1000; ++place) {
    path += "Ж";
  }
  Put("key", "name", path);
  EXPECT_TRUE(Read() == path);
}

TEST_F(About, StartsTheSystemsInformationTool) {
  Put(toolKey, "PATH", "C:\\tool.exe\0"s);
  Put(locationKey, "MSINFO", "C:\\other"s);
  outside.Files.Content["C:\\other\\MSINFO32.EXE"] = "";
  EXPECT_EQ(Press(), (Outcome{{"C:\\tool.exe"}, {}}));
}

TEST_F(About, LooksForTheToolInItsFolderOtherwise) {
  Put(locationKey, "MSINFO", "C:\\folder\0"s);
  outside.Files.Content["C:\\folder\\MSINFO32.EXE"] = "";
  EXPECT_EQ(Press(), (Outcome{{"C:\\folder\\MSINFO32.EXE"}, {}}));
}

TEST_F(About, LooksForTheToolInItsFolderWhenItsOwnKeyHasNoPath) {
  Put(toolKey, "VERSION", "1"s);
  Put(locationKey, "MSINFO", "C:\\folder"s);
  outside.Files.Content["C:\\folder\\MSINFO32.EXE"] = "";
  EXPECT_EQ(Press(), (Outcome{{"C:\\folder\\MSINFO32.EXE"}, {}}));
}

TEST_F(About, TellsThatThereIsNoTool) {
  EXPECT_EQ(Press(), (Outcome{{}, {unavailable}}));
}

TEST_F(About, TellsThatTheToolIsNotInItsFolder) {
  Put(locationKey, "MSINFO", "C:\\folder"s);
  EXPECT_EQ(Press(), (Outcome{{}, {unavailable}}));
}

/// A desktop on which no program starts.
class NoStart : public RecordingShell {
 public:
  void StartProgram(const std::string& /*path*/) override {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
};

TEST_F(About, TellsThatTheToolDoesNotStart) {
  Put(toolKey, "PATH", "C:\\gone.exe"s);
  NoStart shell;
  const Services whole = outside.Bundle();
  frmAbout(Services{whole.Messages, whole.Dialogs, whole.Clipboard, whole.Settings, whole.Registry,
                    whole.Automation, shell, whole.Clock, whole.Resources, whole.Files,
                    whole.Locale, whole.ProgramFolder})
      .cmdSysInfo_Click();
  EXPECT_EQ(outside.Messages.Shown, Messages{unavailable});
}

}  // namespace
}  // namespace trelonit::test
