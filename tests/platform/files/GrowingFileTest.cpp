#ifndef _WIN32

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <unistd.h>

#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);
std::string InChild(const std::function<std::string()>& body);
void DropRights();

namespace {

class GrowingFileOnDisk : public FileFolder {
 protected:
  int ErrorOfBeginning(const std::string& name) {
    return ErrorOf([&] { files.BeginFile(In(name)); });
  }
};

TEST_F(GrowingFileOnDisk, TakesItsPlaceWhenItIsWhole) {
  Put("table", "old");
  const auto file = files.BeginFile(In("table"));
  file->Append("one, ");
  file->Append("two");
  EXPECT_EQ(Content("table"), "old");
  file->Finish();
  EXPECT_EQ(Content("table"), "one, two");
  EXPECT_EQ(Names(), std::set<std::string>{"table"});
}

TEST_F(GrowingFileOnDisk, GoesWhereItIsNotFinished) {
  Put("table", "old");
  files.BeginFile(In("table"))->Append("half");
  EXPECT_EQ(Content("table"), "old");
  EXPECT_EQ(Names(), std::set<std::string>{"table"});
}

TEST_F(GrowingFileOnDisk, GoesWhereAFolderHasTakenItsPlaceMeanwhile) {
  const auto file = files.BeginFile(In("table"));
  file->Append("whole");
  std::filesystem::create_directory(In("table"));
  EXPECT_EQ(ErrorOf([&] { file->Finish(); }), 75);
  EXPECT_TRUE(std::filesystem::is_directory(In("table")));
}

TEST_F(GrowingFileOnDisk, IsRefusedInAFolderThatIsNotWritable) {
  std::filesystem::permissions(In(""), std::filesystem::perms(0555));
  const std::string answer = InChild([this]() -> std::string {
    DropRights();
    files.BeginFile(In("table"));
    return "begun";
  });
  std::filesystem::permissions(In(""), std::filesystem::perms(0755));
  EXPECT_EQ(answer, "error 70");
}

TEST_F(GrowingFileOnDisk, IsRefusedWhereItsGroupMayNotBeGiven) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "only root gives files away";
  }
  std::filesystem::permissions(In(""), std::filesystem::perms(0777));
  Put("table", "old", 0666);
  ASSERT_EQ(::chown(In("table").c_str(), 12345, 54321), 0);
  const std::string answer = InChild([this]() -> std::string {
    DropRights();
    files.BeginFile(In("table"));
    return "begun";
  });
  EXPECT_EQ(answer, "error 70");
  EXPECT_EQ(Content("table"), "old");
  EXPECT_EQ(Names(), std::set<std::string>{"table"});
}

TEST_F(GrowingFileOnDisk, IsRefusedWhereNoneCanBe) {
  EXPECT_EQ(ErrorOfBeginning("none/table"), 76);
  EXPECT_EQ(ErrorOfBeginning(""), 75);
}

}  // namespace

}  // namespace trelonit::test

#endif
