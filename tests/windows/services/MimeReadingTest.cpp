// Which program the desktop's lists make the default, in real files.
#ifndef _WIN32

#include "tests/windows/services/MimeHome.h"

namespace trelonit::test {
namespace {

class MimeDefaultsRead : public MimeTest {};

TEST_F(MimeDefaultsRead, AreEmptyWithoutAnyList) {
  EXPECT_EQ(Program(), "");
}

TEST_F(MimeDefaultsRead, AreTheFirstProgramOfTheLineThatIsThere) {
  Put(userList, List("text/plain = gone.desktop; editor.desktop ;other.desktop;\n"));
  EXPECT_EQ(Program(), "editor.desktop");
}

TEST_F(MimeDefaultsRead, FollowTheFileAtOnce) {
  for (const char* program : {"editor.desktop", "other.desktop", "editor.desktop"}) {
    Put(userList, List("text/plain=" + std::string(program) + "\n"));
    EXPECT_EQ(Program(), program);
  }
}

TEST_F(MimeDefaultsRead, ComeFromTheStrongestListThatNamesAnInstalledProgram) {
  const EnvironmentVariable desktop("XDG_CURRENT_DESKTOP", QStringLiteral("Fine:GNOME"));
  const std::vector<std::string> lists{"config/fine-mimeapps.list",
                                       "config/gnome-mimeapps.list",
                                       userList,
                                       "etc/fine-mimeapps.list",
                                       "etc/mimeapps.list",
                                       "data/applications/mimeapps.list",
                                       "share/applications/gnome-mimeapps.list",
                                       "share/applications/mimeapps.list"};
  for (std::size_t number = lists.size(); number > 0; --number) {
    const std::string program = "p" + std::to_string(number) + ".desktop";
    Put(lists[number - 1], List("text/plain=" + program + "\n"));
    AddEntry("share", program);
    EXPECT_EQ(Program(), program) << lists[number - 1];
  }
  Put(lists[0], List("text/plain=gone.desktop\n"));
  EXPECT_EQ(Program(), "p2.desktop");
}

TEST_F(MimeDefaultsRead, IgnoreTheListsOfOtherDesktops) {
  Put("config/gnome-mimeapps.list", List("text/plain=editor.desktop\n"));
  EXPECT_EQ(Program(), "");
}

TEST_F(MimeDefaultsRead, FallBackOnAProgramThatOffersTheType) {
  Put("share/applications/mimeinfo.cache",
      "[MIME Cache]\ntext/plain=gone.desktop;editor.desktop;other.desktop;\n");
  EXPECT_EQ(Program(), "editor.desktop");
  Put(userList, "[Removed Associations]\ntext/plain=editor.desktop;\n");
  EXPECT_EQ(Program(), "other.desktop");
  Put(userList, "[Added Associations]\ntext/plain=" + std::string(own) + ";\n");
  EXPECT_EQ(Program(), own);
  Put("etc/mimeapps.list", List("text/plain=editor.desktop\n"));
  EXPECT_EQ(Program(), "editor.desktop");
}

TEST_F(MimeDefaultsRead, FallBackOnTheProgramForTheKindOfFile) {
  Put(userList, List("text/plain=editor.desktop\n"));
  EXPECT_EQ(Program("text/x-log"), "editor.desktop");
  Put("share/applications/mimeinfo.cache", "[MIME Cache]\ntext/x-log=other.desktop;\n");
  EXPECT_EQ(Program("text/x-log"), "other.desktop");
}

TEST_F(MimeDefaultsRead, KnowAnEntryInAFolderByItsMinus) {
  AddEntry("share", "office/tools/pad-2.desktop");
  Put(userList, List("text/plain=office-tools-pad-2.desktop\n"));
  EXPECT_EQ(Program(), "office-tools-pad-2.desktop");
  Put(userList, List("text/plain=office/tools/pad-2.desktop;editor.desktop\n"));
  EXPECT_EQ(Program(), "editor.desktop");
}

TEST_F(MimeDefaultsRead, DoNotKnowAnEntryThatTheUserHasHidden) {
  Put(userList, List("text/plain=editor.desktop;other.desktop\n"));
  AddEntry("data", "editor.desktop", "Hidden=true\n");
  EXPECT_EQ(Program(), "other.desktop");
}

TEST_F(MimeDefaultsRead, TakeTheLineOfTheirGroupAlone) {
  Put(userList,
      "text/plain=other.desktop\n[Other]\ntext/plain=other.desktop\n"
      "[Default Applications]\n#text/plain=other.desktop\ntext/plainer=other.desktop\n"
      "stray line\ntext/plain=editor.desktop\r\n[More]\ntext/plain=other.desktop\n");
  EXPECT_EQ(Program(), "editor.desktop");
}

}  // namespace
}  // namespace trelonit::test

#endif
