#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/files/OverwriteQuestion.h"
#include "platform/files/Paths.h"

namespace trelonit::test {

namespace fs = std::filesystem;

namespace {

TEST(JoinPath, PutsOneSeparatorBetween) {
  EXPECT_EQ(JoinPath("/a/b", "c.dat"), "/a/b/c.dat");
  EXPECT_EQ(JoinPath("/a/b/", "c.dat"), "/a/b/c.dat");
  EXPECT_EQ(JoinPath("C:\\a\\", "c.dat"), "C:\\a\\c.dat");
}

TEST(JoinPath, TakesTheRootAsItIs) {
  EXPECT_EQ(JoinPath("/", "c.dat"), "/c.dat");
  EXPECT_EQ(JoinPath("C:\\", "c.dat"), "C:\\c.dat");
}

TEST(JoinPath, KeepsBlanksAndLettersOfEveryKind) {
  EXPECT_EQ(JoinPath("/Мои фермы", "GOST profile.dat"), "/Мои фермы/GOST profile.dat");
}

TEST(AbsolutePath, StandsFromTheWorkingFolderOn) {
  const fs::path folder = fs::current_path();
  EXPECT_EQ(AbsolutePath("Ферма 1.tsav"), folder / fs::path(u8"Ферма 1.tsav"));
  EXPECT_EQ(AbsolutePath((folder / "x").string()), folder / "x");
}

TEST(AbsolutePath, KeepsTheDotsOfTheName) {
  EXPECT_EQ(AbsolutePath("a/../b"), fs::current_path() / "a/../b");
}

TEST(PathOfUtf8, GivesTheSameNameBack) {
  for (const std::string name : {"", "a", "/Мои фермы/№ 1.tsav", "\xF0\x9F\x98\x80"}) {
    EXPECT_EQ(Utf8OfPath(PathOfUtf8(name)), name);
  }
}

TEST(MayOverwrite, IsTrueForAYesAlone) {
  for (const MessageAnswer answer :
       {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel}) {
    struct Answering : MessageService {
      explicit Answering(MessageAnswer given) : Given(given) {}
      MessageAnswer Show(const Message& message) override {
        Shown = message;
        return Given;
      }
      MessageAnswer Given;
      Message Shown;
    } messages(answer);
    EXPECT_EQ(MayOverwrite(messages), answer == MessageAnswer::Yes);
    EXPECT_EQ(messages.Shown, (Message{"Переписать файл ?", "Такой файл уже существует! Заменить?",
                                       MessageStyle::QuestionYesNo}));
  }
}

#ifndef _WIN32

TEST(LongName, IsTheNameItselfWhereTheSystemKnowsNoShortOnes) {
  EXPECT_EQ(LongName("/home/PROJEC~1/a.tsav"), "/home/PROJEC~1/a.tsav");
}

#endif

TEST(FolderOf, TellsWhatStandsInFrontOfTheName) {
  EXPECT_EQ(FolderOf("/база/GOST profile.dat"), "/база");
  EXPECT_EQ(FolderOf("/a.dat"), "/");
  EXPECT_EQ(FolderOf("a.dat"), "");
  EXPECT_EQ(FolderOf(""), "");
}

}  // namespace

}  // namespace trelonit::test
