// The user's default programs, chosen and given back in real files of a home of its own.
#ifndef _WIN32

#include <QProcess>
#include <QStandardPaths>

#include "editor/associations/MimeAssociations.h"
#include "editor/associations/frmAssoc.h"
#include "tests/support/FailingDisk.h"
#include "tests/support/TestServices.h"
#include "tests/windows/services/MimeHome.h"

namespace trelonit::test {
namespace {

class MimeDefaultsInFiles : public MimeTest {};

// Choosing -------------------------------------------------------------------------------------

TEST_F(MimeDefaultsInFiles, AreWrittenWhereThereIsNoListYet) {
  ASSERT_FALSE(Exists("config"));
  Choose();
  EXPECT_EQ(Text(userList), List("text/plain=" + std::string(own) + ";\n"));
  EXPECT_EQ(Program(), own);
  Undo();
  EXPECT_EQ(Text(userList), "");
  EXPECT_EQ(Program(), "");
}

TEST_F(MimeDefaultsInFiles, ChangeOneLineAndRestoreIt) {
  const std::string before =
      "# mine\n\n[Added Associations]\ntext/plain=other.desktop\n\n\n[Default Applications]\n"
      "image/png=  view.desktop\nstray line\n text/plain = editor.desktop;other.desktop \n"
      "video/mp4=play.desktop";
  Put(userList, before);
  Choose();
  std::string expected = before;
  const std::string line = " text/plain = editor.desktop;other.desktop ";
  expected.replace(expected.find(line), line.size(),
                   "text/plain=" + std::string(own) + ";editor.desktop;other.desktop;");
  EXPECT_EQ(Text(userList), expected);
  EXPECT_EQ(Program(), own);
  Undo();
  EXPECT_EQ(Text(userList), before);
  EXPECT_EQ(Program(), "editor.desktop");
}

TEST_F(MimeDefaultsInFiles, AddALineAndTakeItAway) {
  for (const std::string before :
       {"[Default Applications]\n", "[Default Applications]\nimage/png=view.desktop\n",
        "# mine\n[Default Applications]\n\n[Added Associations]\ntext/plain=other.desktop\n",
        "[Added Associations]\ntext/plain=other.desktop\n", "# mine\n"}) {
    Put(userList, before);
    Choose();
    EXPECT_NE(Text(userList).find("[Default Applications]\ntext/plain=" + std::string(own) + ";\n"),
              std::string::npos)
        << before;
    EXPECT_EQ(Program(), own) << before;
    Undo();
    // A group without a line says nothing.
    EXPECT_EQ(Text(userList), before == "[Default Applications]\n" ? "" : before);
  }
}

TEST_F(MimeDefaultsInFiles, EndTheLastLineBeforeTheyAddOne) {
  Put(userList, "[Default Applications]");
  Choose();
  EXPECT_EQ(Text(userList), List("text/plain=" + std::string(own) + ";\n"));
  Put(userList, "[Other]\na=b");
  Choose();
  EXPECT_EQ(Text(userList), "[Other]\na=b\n" + List("text/plain=" + std::string(own) + ";\n"));
}

TEST_F(MimeDefaultsInFiles, KeepEachTypeByItself) {
  const std::string before = List("text/plain=editor.desktop\ntext/x-log=other.desktop\n");
  Put(userList, before);
  const std::vector<std::string> types{plain, "text/x-log", "application/x-trelonit-project"};
  for (const std::string& type : types) {
    Choose(type);
  }
  for (const std::string& type : types) {
    EXPECT_EQ(Program(type), own);
  }
  Undo("text/x-log");
  EXPECT_EQ(Program("text/x-log"), "other.desktop");
  EXPECT_EQ(Program(), own);
  Undo(plain);
  Undo("application/x-trelonit-project");
  EXPECT_EQ(Text(userList), before);
}

TEST_F(MimeDefaultsInFiles, RememberTheFirstOfTwoChoices) {
  const std::string before = List("text/plain=editor.desktop\n");
  Put(userList, before);
  Choose();
  const std::string chosen = Text(userList);
  Choose();
  EXPECT_EQ(Text(userList), chosen);
  Undo();
  EXPECT_EQ(Text(userList), before);
  Undo();
  EXPECT_EQ(Text(userList), before);
}

TEST_F(MimeDefaultsInFiles, AreUndoneByAnotherRunOfTheProgram) {
  const std::string before = List("text/plain=editor.desktop\n");
  Put(userList, before);
  Choose();
  MimeDefaults(Files, Settings).UndoDefaultProgram(plain, own);
  EXPECT_EQ(Text(userList), before);
}

TEST_F(MimeDefaultsInFiles, LeaveAnotherChoiceOfTheUser) {
  Put(userList, List("text/plain=editor.desktop\n"));
  Choose();
  const std::string other = List("text/plain=other.desktop;" + std::string(own) + "\n");
  Put(userList, other);
  Undo();
  EXPECT_EQ(Text(userList), other);
  // The next choice begins from there.
  Choose();
  EXPECT_EQ(Program(), own);
  Undo();
  EXPECT_EQ(Text(userList), other);
}

TEST_F(MimeDefaultsInFiles, GiveUpAChoiceThatTheUserMadeByHand) {
  Put(userList, List("text/plain=" + std::string(own) + ";editor.desktop;\n"));
  Undo();
  EXPECT_EQ(Text(userList), List("text/plain=editor.desktop;\n"));
  Put(userList, List("text/plain=" + std::string(own) + "\nimage/png=view.desktop\n"));
  Undo();
  EXPECT_EQ(Text(userList), List("image/png=view.desktop\n"));
}

TEST_F(MimeDefaultsInFiles, AreWrittenWhereTheDesktopOfTheUserReadsThemFirst) {
  const EnvironmentVariable desktop("XDG_CURRENT_DESKTOP", QStringLiteral("Fine"));
  const std::string common = List("text/plain=editor.desktop\n");
  const std::string special = List("text/plain=other.desktop\n");
  Put(userList, common);
  Put("config/fine-mimeapps.list", special);
  Choose();
  EXPECT_EQ(Text(userList), common);
  EXPECT_EQ(Program(), own);
  Choose("text/x-log");
  EXPECT_EQ(Text(userList),
            List("text/x-log=" + std::string(own) + ";\n" + "text/plain=editor.desktop\n"));
  Undo();
  Undo("text/x-log");
  EXPECT_EQ(Text(userList), common);
  EXPECT_EQ(Text("config/fine-mimeapps.list"), special);
}

TEST_F(MimeDefaultsInFiles, AreUndoneInEveryListOfTheDesktop) {
  const std::string common = List("text/plain=editor.desktop\n");
  Put(userList, common);
  Choose();
  const EnvironmentVariable desktop("XDG_CURRENT_DESKTOP", QStringLiteral("Fine"));
  const std::string special = List("text/plain=other.desktop\n");
  Put("config/fine-mimeapps.list", special);
  Choose();
  Undo();
  EXPECT_EQ(Text(userList), common);
  EXPECT_EQ(Text("config/fine-mimeapps.list"), special);
}

// Failures -------------------------------------------------------------------------------------

TEST_F(MimeDefaultsInFiles, Raise53ForAnEntryThatTheDesktopDoesNotHave) {
  EXPECT_EQ(NumberOf([&] { Defaults.SetDefaultProgram(plain, "gone.desktop"); }), 53);
  EXPECT_EQ(NumberOf([&] { Defaults.SetDefaultProgram(plain, "../applications/editor.desktop"); }),
            53);
  EXPECT_FALSE(Exists(userList));
}

TEST_F(MimeDefaultsInFiles, Raise75WhereTheListCannotBeStored) {
  Put("config", "a file where the folder should be");
  EXPECT_EQ(NumberOf([&] { Choose(); }), 75);
  EXPECT_EQ(Text("config"), "a file where the folder should be");
  EXPECT_EQ(NumberOf([&] { Undo(); }), 0);
}

TEST_F(MimeDefaultsInFiles, Raise75WhereAFolderStandsInThePlaceOfTheList) {
  Put(std::string(userList) + "/x", "");
  EXPECT_EQ(NumberOf([&] { Choose(); }), 75);
  EXPECT_TRUE(Exists(std::string(userList) + "/x"));
}

/// The disk, on which nothing more can be written.
class FullDisk : public DiskFiles {
 public:
  explicit FullDisk(ErrorNumber number) : number_(number) {}
  void ReplaceFile(const std::string&, std::string_view) override { throw RuntimeError(number_); }

 private:
  ErrorNumber number_;
};

TEST_F(MimeDefaultsInFiles, TellARefusalAndAFullDiskFromOtherFailures) {
  const std::string before = List("text/plain=editor.desktop\n");
  Put(userList, before);
  for (const auto& [raised, expected] : {std::pair{ErrorNumber::PermissionDenied, 70},
                                         {ErrorNumber::DiskFull, 61},
                                         {ErrorNumber::PathNotFound, 75},
                                         {ErrorNumber::DeviceIoError, 75}}) {
    FullDisk disk(raised);
    MimeDefaults defaults(disk, Settings);
    EXPECT_EQ(NumberOf([&] { defaults.SetDefaultProgram(plain, own); }), expected);
    // Nothing is remembered of a choice that was not made: what the user then chooses by hand
    // does not lead back to it.
    Put(userList, List("text/plain=" + std::string(own) + ";other.desktop\n"));
    EXPECT_EQ(NumberOf([&] { defaults.UndoDefaultProgram(plain, own); }), expected);
    Undo();
    EXPECT_EQ(Text(userList), List("text/plain=other.desktop;\n"));
    Put(userList, before);
  }
}

TEST_F(MimeDefaultsInFiles, DoNotReplaceAListThatCannotBeReadToItsEnd) {
  const std::string before = List("text/plain=editor.desktop\n");
  Put(userList, before);
  FailingDisk disk;
  MimeDefaults defaults(disk, Settings);
  EXPECT_EQ(defaults.DefaultProgram(plain), "");
  EXPECT_EQ(NumberOf([&] { defaults.SetDefaultProgram(plain, own); }), 75);
  EXPECT_EQ(NumberOf([&] { defaults.UndoDefaultProgram(plain, own); }), 75);
  EXPECT_EQ(Text(userList), before);
}

TEST_F(MimeDefaultsInFiles, CanBeUndoneOnceTheListCanBeStoredAgain) {
  const std::string before = List("text/plain=editor.desktop\n");
  Put(userList, before);
  Choose();
  FullDisk disk(ErrorNumber::DiskFull);
  EXPECT_EQ(NumberOf([&] { MimeDefaults(disk, Settings).UndoDefaultProgram(plain, own); }), 61);
  EXPECT_EQ(Program(), own);
  Undo();
  EXPECT_EQ(Text(userList), before);
}

// Other programs -------------------------------------------------------------------------------

TEST_F(MimeDefaultsInFiles, AreSeenByTheDesktopsOwnTools) {
  const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
  const QString gio = QStandardPaths::findExecutable(QStringLiteral("gio"));
  if (query.isEmpty() && gio.isEmpty()) {
    GTEST_SKIP() << "neither xdg-mime nor gio is installed";
  }
  const auto said = [](const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return FromQt(QString::fromUtf8(process.readAllStandardOutput()));
  };
  const auto expect = [&](const std::string& program) {
    EXPECT_EQ(Program(), program);
    if (!query.isEmpty()) {
      EXPECT_EQ(said(query, {"query", "default", plain}), program + "\n");
    }
    if (!gio.isEmpty()) {
      const std::string answer = said(gio, {"mime", plain});
      EXPECT_NE(answer.substr(0, answer.find('\n')).find(program), std::string::npos) << answer;
    }
  };
  Put(userList, List("text/plain=editor.desktop\n"));
  expect("editor.desktop");
  Choose();
  expect(own);
  Undo();
  expect("editor.desktop");
}

// The form -------------------------------------------------------------------------------------

TEST_F(MimeDefaultsInFiles, AreTakenAndGivenBackByTheForm) {
  const std::string before =
      "# mine\n" + List("text/x-log=other.desktop\ntext/plain=editor.desktop\n");
  Put(userList, before);
  MimeAssociations associations(Defaults);
  RecordingMessages messages;
  frmAssoc form(associations, messages);
  form.Form_Load();
  EXPECT_TRUE(form.Option2.Value());
  EXPECT_FALSE(form.cmdApply.Enabled());
  form.Option1.SetValue(true);
  EXPECT_TRUE(form.cmdApply.Enabled());
  form.cmdApply_Click();
  EXPECT_FALSE(form.cmdApply.Enabled());
  for (const char* type : {plain, "text/x-log", "application/x-trelonit-project"}) {
    EXPECT_EQ(Program(type), own) << type;
  }
  form.Form_Load();
  EXPECT_TRUE(form.Option1.Value());
  form.Option2.SetValue(true);
  form.cmdApply_Click();
  EXPECT_FALSE(form.cmdApply.Enabled());
  EXPECT_EQ(Text(userList), before);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(MimeDefaultsInFiles, StayWhereTheProgramIsNotInstalled) {
  ASSERT_TRUE(QFile::remove(ToQt(Path("data/applications/" + std::string(own)))));
  MimeAssociations associations(Defaults);
  RecordingMessages messages;
  frmAssoc form(associations, messages);
  form.Form_Load();
  form.Option1.SetValue(true);
  form.cmdApply_Click();
  EXPECT_EQ(messages.Shown, std::vector{ErrorMessage("cmdApply_Click", 53, "File not found")});
  EXPECT_TRUE(form.cmdApply.Enabled());
  EXPECT_FALSE(Exists(userList));
}

}  // namespace
}  // namespace trelonit::test

#endif
