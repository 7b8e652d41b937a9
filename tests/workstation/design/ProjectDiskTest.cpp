#ifndef _WIN32

#include <csignal>
#include <deque>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/files/Files.h"
#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

namespace fs = std::filesystem;

/// A new empty folder that goes with this object.
class OwnFolder {
 public:
  OwnFolder() {
    std::string name = (fs::temp_directory_path() / "trelonit-project-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
      throw std::runtime_error("no folder " + name);
    }
    path_ = name;
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;
  OwnFolder(OwnFolder&&) = delete;
  OwnFolder& operator=(OwnFolder&&) = delete;
  ~OwnFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

/// While it lives no file may grow beyond these bytes: what a full disk looks like, also to root.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    if (::getrlimit(RLIMIT_FSIZE, &before_) != 0) {
      throw std::runtime_error("no limit of the file size");
    }
    rlimit limited = before_;
    limited.rlim_cur = bytes;
    signal_ = std::signal(SIGXFSZ, SIG_IGN);
    if (::setrlimit(RLIMIT_FSIZE, &limited) != 0) {
      throw std::runtime_error("the file size cannot be limited");
    }
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  FullDisk(FullDisk&&) = delete;
  FullDisk& operator=(FullDisk&&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  rlimit before_{};
  void (*signal_)(int) = nullptr;
};

/// The form with all its files on the real disk.
class ProjectOnDisk : public ::testing::Test {
 protected:
  ProjectOnDisk() {
    const Services whole = desk.Outside.Bundle();
    const Services services{whole.Messages, whole.Dialogs,  whole.Clipboard,
                            whole.Settings, whole.Registry, whole.Automation,
                            whole.Shell,    whole.Clock,    whole.Resources,
                            disk,           whole.Locale,   Program()};
    form = std::make_unique<frmMain>(services, frmMain::Openers());
    form->Form_Load();
    desk.TakeMessages();
  }

  std::string In(const std::string& name) const { return (projects.Path() / name).string(); }
  bool Save(const std::string& name, std::deque<MessageAnswer> answers = {}) {
    desk.Outside.Dialogs.Names = {In(name)};
    desk.Outside.Messages.Answers = std::move(answers);
    return form->SaveParam_Click();
  }
  bool Restore(const std::string& name) {
    desk.Outside.Dialogs.Names = {In(name)};
    return form->Restore_Click();
  }
  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(In(name), std::ios::binary) << bytes;
  }
  std::string Bytes(const std::string& name) const {
    std::ifstream stream(In(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(projects.Path())) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }
  static Message Question() {
    return {"Переписать файл ?", "Такой файл уже существует! Заменить?",
            MessageStyle::QuestionYesNo};
  }

  OwnFolder projects;
  OwnFolder program;
  Desk desk;
  DiskFiles disk;
  std::unique_ptr<frmMain> form;

 private:
  std::string Program() const { return program.Path().string(); }
};

TEST_F(ProjectOnDisk, HasTheBytesOfTheFormat) {
  EXPECT_TRUE(Save("roof.tsav"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(Bytes("roof.tsav"), ProjectBytes(StartUpValues()));
  EXPECT_EQ(Names(), std::set<std::string>{"roof.tsav"});
}

TEST_F(ProjectOnDisk, MayHaveANameInCyrillicLetters) {
  form->txtLengthF.SetText("33");
  EXPECT_TRUE(Save("ферма № 1.tsav"));
  EXPECT_EQ(Names(), std::set<std::string>{"ферма № 1.tsav"});
  form->txtLengthF.SetText("44");
  EXPECT_TRUE(Restore("ферма № 1.tsav"));
  EXPECT_EQ(form->txtLengthF.Text(), "33");
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectOnDisk, LeavesNothingOfALongerFileBeforeIt) {
  Put("roof.tsav", std::string(100'000, 'x'));
  EXPECT_TRUE(Save("roof.tsav", {MessageAnswer::Yes}));
  EXPECT_EQ(desk.TakeMessages(), Messages{Question()});
  EXPECT_EQ(Bytes("roof.tsav"), ProjectBytes(StartUpValues()));
  EXPECT_EQ(Names(), std::set<std::string>{"roof.tsav"});
}

TEST_F(ProjectOnDisk, KeepsTheOldFileWholeOnAFullDisk) {
  Put("roof.tsav", "what was there before");
  // Nothing at all, and a part of the project, which has more than 300 bytes.
  for (const rlim_t bytes : {0U, 1U, 100U, 300U}) {
    bool saved = true;
    {
      const FullDisk full(bytes);
      saved = Save("roof.tsav", {MessageAnswer::Yes});
    }
    EXPECT_FALSE(saved) << bytes;
    EXPECT_EQ(desk.TakeMessages(), (Messages{Question(), OpenFailure("Disk full")})) << bytes;
    EXPECT_EQ(Bytes("roof.tsav"), "what was there before") << bytes;
    EXPECT_EQ(Names(), std::set<std::string>{"roof.tsav"}) << bytes;
  }
  EXPECT_TRUE(Save("roof.tsav", {MessageAnswer::Yes}));
  EXPECT_EQ(Bytes("roof.tsav"), ProjectBytes(StartUpValues()));
}

TEST_F(ProjectOnDisk, IsNotHalfThereOnAFullDisk) {
  bool saved = true;
  {
    const FullDisk full(100);
    saved = Save("roof.tsav");
  }
  EXPECT_FALSE(saved);
  EXPECT_EQ(desk.TakeMessages(), Messages{OpenFailure("Disk full")});
  EXPECT_EQ(Names(), std::set<std::string>());
}

TEST_F(ProjectOnDisk, TellsThatTheFolderIsMissing) {
  EXPECT_FALSE(Save("no/such/folder/roof.tsav"));
  EXPECT_EQ(desk.TakeMessages(), Messages{OpenFailure("Path not found")});
  EXPECT_EQ(Names(), std::set<std::string>());
}

TEST_F(ProjectOnDisk, DoesNotReplaceAFolder) {
  fs::create_directory(In("roof.tsav"));
  EXPECT_FALSE(Save("roof.tsav"));
  EXPECT_EQ(desk.TakeMessages(), Messages{OpenFailure("Path/File access error")});
  EXPECT_TRUE(fs::is_directory(In("roof.tsav")));
  EXPECT_FALSE(Restore("roof.tsav"));
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{{"", "Указаный файл не найден ! Восстановление отменено !"}}));
}

TEST_F(ProjectOnDisk, IsReadAgainAsItWasWritten) {
  form->imgTreloType_Click(2);
  Choose(form->cmbPanelNum, "8");
  form->tabMain.SetTab(2);
  AddForce(*form, 3, "-1.25");
  EXPECT_TRUE(Save("first.tsav"));
  form->cmdClearLoads_Click();
  form->imgTreloType_Click(1);
  EXPECT_TRUE(Restore("first.tsav"));
  EXPECT_EQ(form->Model.Inputs.Loads.UpPForce[3], -1.25);
  EXPECT_EQ(form->Model.Inputs.TreloType, 2);
  EXPECT_TRUE(Save("second.tsav"));
  EXPECT_EQ(Bytes("second.tsav"), Bytes("first.tsav"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ProjectOnDisk, MayBeMadeOfAnyBytes) {
  for (const std::string& bytes :
       {std::string(), std::string(1, '\0'), std::string("\xFF\xFE\"\0", 4),
        std::string(100'000, '"'), std::string(100'000, '\r')}) {
    Put("roof.tsav", bytes);
    EXPECT_FALSE(Restore("roof.tsav"));
    const Messages shown = desk.TakeMessages();
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown.at(0), LineCountMessage());
    EXPECT_EQ(shown.at(1), HeaderMessage());
    EXPECT_EQ(Bytes("roof.tsav"), bytes);
  }
}

}  // namespace
}  // namespace trelonit::test

#endif
