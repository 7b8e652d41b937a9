#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "tests/catalogue/DataManagerDesk.h"
#include "tests/catalogue/DataManagerFolder.h"
#include "tests/support/ProcessorTime.h"

namespace trelonit {
namespace {

namespace fs = std::filesystem;
using test::Told;

TEST(DataManagerDisk, EditsARealFileInPlace) {
  const test::ScratchFolder folder;
  const fs::path path = folder.Put("база.dat", test::NumberedFile(3));
  fs::create_hard_link(path, folder.In("other"));
  DiskFiles files;
  test::DataManagerDesk desk(files);
  desk.Load(test::Utf8Of(path));
  desk.Form.cmdForv_Click();
  desk.Type({"new name"});
  desk.Form.cmdEditCurrent_Click();
  EXPECT_TRUE(desk.Messages.Shown.empty());
  std::string expected = test::NumberedFile(3);
  expected.replace(177, 15, "new name       ");
  EXPECT_EQ(test::ContentOf(path), expected);
  // The file itself was written, no new one put in its place.
  EXPECT_EQ(test::ContentOf(folder.In("other")), expected);
  EXPECT_EQ(folder.Count(), 2);
}

TEST(DataManagerDisk, ChecksARealFileAndKeepsItsCopy) {
  const test::ScratchFolder folder;
  const fs::path path = folder.Put("some.dat", test::NumberedFile(3));
  DiskFiles files;
  test::DataManagerDesk desk(files);
  desk.Check(test::Utf8Of(path));
  EXPECT_TRUE(desk.Messages.Shown.empty());
  EXPECT_EQ(test::ContentOf(path), test::NumberedFile(3));
  EXPECT_EQ(test::ContentOf(folder.In("some.dat.bak")), test::NumberedFile(3));
  EXPECT_EQ(folder.Count(), 2);
}

TEST(DataManagerDisk, TellsThatTheFileIsGone) {
  const test::ScratchFolder folder;
  const fs::path path = folder.Put("some.dat", test::NumberedFile(3));
  DiskFiles files;
  test::DataManagerDesk desk(files);
  desk.Load(test::Utf8Of(path));
  fs::remove(path);
  desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(desk.Messages.Shown, std::vector{Told("Data file not exists !")});
  EXPECT_EQ(folder.Count(), 0);
}

TEST(DataManagerDisk, TakesAFolderForNoFile) {
  const test::ScratchFolder folder;
  fs::create_directory(folder.In("some.dat"));
  DiskFiles files;
  test::DataManagerDesk desk(files);
  desk.Load(test::Utf8Of(folder.In("some.dat")));
  EXPECT_EQ(desk.Messages.Shown, std::vector{Told("Data file not exists !")});
  desk.Check(test::Utf8Of(folder.In("some.dat")));
  EXPECT_EQ(desk.Messages.Shown.back(), test::noDescriptor);
  EXPECT_EQ(desk.Ended, 1);
}

TEST(DataManagerDisk, OpensAHundredMegabytesInSeconds) {
  const test::ScratchFolder folder;
  const fs::path path = folder.Put("large.dat", test::NumberedFile(1));
  constexpr std::uintmax_t size = 100'000'000;
  fs::resize_file(path, size);
  DiskFiles files;
  test::DataManagerDesk desk(files);
  const double seconds = test::SecondsOf([&] {
    desk.Load(test::Utf8Of(path));
    desk.Form.cmdLastpoz_Click();
    desk.Type({"last"});
    desk.Form.cmdEditCurrent_Click();
  });
  EXPECT_LT(seconds, 20);
  EXPECT_TRUE(desk.Messages.Shown.empty());
  // 564971.75 records.
  EXPECT_EQ(desk.Counts(), "564972/564972");
  EXPECT_EQ(desk.Form.Records[1], test::NumberedRecord(1));
  EXPECT_EQ(fs::file_size(path), 564972U * 177);
}

}  // namespace
}  // namespace trelonit
