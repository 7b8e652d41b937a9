#ifndef _WIN32

#include <gtest/gtest.h>
#include <set>
#include <string>

#include "platform/errors/RuntimeError.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace {

class GrowingFileOnDisk : public FileFolder {
 protected:
  int ErrorOfBeginning(const std::string& name) {
    try {
      files.BeginFile(In(name));
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
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

TEST_F(GrowingFileOnDisk, IsRefusedWhereNoneCanBe) {
  EXPECT_EQ(ErrorOfBeginning("none/table"), 76);
  EXPECT_EQ(ErrorOfBeginning(""), 75);
}

}  // namespace

}  // namespace trelonit::test

#endif
