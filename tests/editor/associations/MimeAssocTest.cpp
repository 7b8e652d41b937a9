#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "editor/associations/MimeAssociations.h"
#include "editor/associations/frmAssoc.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {
namespace {

/// A user's choices, in memory.
class MemoryDefaults : public MimeDefaultService {
 public:
  bool HasProgram(const std::string& entry) override { return Installed.contains(entry); }
  std::string DefaultProgram(const std::string& mimeType) override {
    const auto found = Programs.find(mimeType);
    return found == Programs.end() ? "" : found->second;
  }
  void SetDefaultProgram(const std::string& mimeType, const std::string& entry) override {
    Steps.push_back("set " + mimeType);
    if (mimeType == Refused) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    before_.emplace(mimeType, DefaultProgram(mimeType));
    Programs[mimeType] = entry;
  }
  void UndoDefaultProgram(const std::string& mimeType, const std::string& entry) override {
    Steps.push_back("undo " + mimeType);
    if (DefaultProgram(mimeType) == entry) {
      Programs[mimeType] = before_[mimeType];
    }
    before_.erase(mimeType);
  }
  std::set<std::string> Installed{desktopEntry};
  std::map<std::string, std::string> Programs;
  std::vector<std::string> Steps;
  std::string Refused;

 private:
  std::map<std::string, std::string> before_;
};

class MimeAssoc : public ::testing::Test {
 protected:
  MimeAssoc() { defaults.Programs["text/plain"] = "editor.desktop"; }
  using Steps = std::vector<std::string>;
  MemoryDefaults defaults;
  MimeAssociations associations{defaults};
  RecordingMessages messages;
  frmAssoc form{associations, messages};
};

TEST_F(MimeAssoc, OpensOnTheProgramForPlainText) {
  form.Form_Load();
  EXPECT_FALSE(form.Option1.Value());
  EXPECT_TRUE(form.Option2.Value());
  defaults.Programs["text/plain"] = "ru.trelonit.Trelonit.desktop";
  form.Form_Load();
  EXPECT_TRUE(form.Option1.Value());
  EXPECT_FALSE(form.Option2.Value());
  defaults.Programs.clear();
  form.Form_Load();
  EXPECT_TRUE(form.Option2.Value());
}

TEST_F(MimeAssoc, TakesTextLogsAndProjects) {
  form.Form_Load();
  form.Option1.SetValue(true);
  EXPECT_TRUE(form.cmdApply.Enabled());
  form.cmdApply_Click();
  EXPECT_EQ(defaults.Steps,
            (Steps{"set text/plain", "set text/x-log", "set application/x-trelonit-project"}));
  for (const auto& [type, program] : defaults.Programs) {
    EXPECT_EQ(program, "ru.trelonit.Trelonit.desktop") << type;
  }
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(MimeAssoc, GivesThemBackByTheOtherOption) {
  form.Form_Load();
  form.Option1.SetValue(true);
  form.cmdApply_Click();
  defaults.Steps.clear();
  form.Option2.SetValue(true);
  form.cmdApply_Click();
  EXPECT_EQ(defaults.Steps,
            (Steps{"undo text/plain", "undo text/x-log", "undo application/x-trelonit-project"}));
  EXPECT_EQ(defaults.Programs["text/plain"], "editor.desktop");
  EXPECT_EQ(defaults.Programs["application/x-trelonit-project"], "");
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(MimeAssoc, TellsARefusalAndCanBeAppliedAgain) {
  form.Form_Load();
  form.Option1.SetValue(true);
  defaults.Refused = "text/plain";
  form.cmdApply_Click();
  EXPECT_EQ(messages.Shown, std::vector{ErrorMessage("cmdApply_Click", 70, "Permission denied")});
  EXPECT_EQ(defaults.Steps, Steps{"set text/plain"});
  EXPECT_TRUE(form.cmdApply.Enabled());
  defaults.Refused.clear();
  form.cmdApply_Click();
  EXPECT_FALSE(form.cmdApply.Enabled());
}

TEST_F(MimeAssoc, LeavesTheFilesAloneWithoutAChoice) {
  associations.Apply({.Owner = TextOwner::Other, .SendTo = true, .SourceViewer = true});
  EXPECT_EQ(defaults.Steps, Steps{});
}

TEST_F(MimeAssoc, SaysWhyTheOtherChoicesAreMissing) {
  EXPECT_FALSE(form.ChSendto.Enabled());
  EXPECT_FALSE(form.ChSC.Enabled());
  EXPECT_TRUE(form.lblNoSendto.Visible());
  EXPECT_TRUE(form.lblNoSC.Visible());
  EXPECT_FALSE(form.lblNoSendto.Caption().empty());
  EXPECT_FALSE(form.lblNoSC.Caption().empty());
  EXPECT_EQ(form.lblOwner.Caption(), "Текстовые файлы (.txt, .log, .tsav) открывает");
}

TEST_F(MimeAssoc, AsksForAnInstalledProgram) {
  EXPECT_EQ(associations.WhyNot(), "");
  defaults.Installed.clear();
  EXPECT_EQ(associations.WhyNot(),
            "Программа не установлена: рабочий стол не может назначить ее для файлов.");
}

}  // namespace
}  // namespace trelonit::test
