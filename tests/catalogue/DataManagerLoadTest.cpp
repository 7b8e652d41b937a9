#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "tests/catalogue/DataManagerDesk.h"

namespace trelonit {
namespace {

using test::MemoryDesk;
using test::NumberedBoxes;
using test::NumberedFile;
using test::Told;
using Texts = std::vector<std::string>;

TEST(DataManagerLoad, HasItsCaptions) {
  MemoryDesk desk;
  EXPECT_EQ(desk.Desk.Form.Form.Caption(), "Менеджер базы данных проката ");
  Texts captions;
  for (const Label& label : desk.Desk.Form.lblText) {
    captions.push_back(label.Caption());
  }
  EXPECT_EQ(captions, (Texts{"Name", "Type", "H = мм", "B = мм", "s =  мм", "t = мм", "r1 = мм",
                             "r2 =  мм", "A =  см", "Jy = см4", "Jz  = см4", "Wy = см3", "Wz = см3",
                             "y0 = мм", "z0 = мм", "P =  кг/см"}));
}

TEST(DataManagerLoad, StartsWithNothing) {
  MemoryDesk desk;
  EXPECT_EQ(desk.Desk.Form.CurPos, 0);
  EXPECT_EQ(desk.Desk.Form.TotalPos, 0);
  EXPECT_FALSE(desk.Desk.Form.Records.IsAllocated());
  EXPECT_EQ(desk.Desk.Form.DataPath, "");
  EXPECT_EQ(desk.Desk.Boxes(), Texts(16));
  EXPECT_EQ(desk.Desk.Counts(), "0/0");
}

TEST(DataManagerLoad, HasNoRecordBeforeItIsOpened) {
  EmbeddedResources resources;
  test::World world(resources);
  frmDataManager form(world.Bundle(), {});
  EXPECT_EQ(form.CurPos, 0);
  EXPECT_EQ(form.TotalPos, 0);
}

TEST(DataManagerLoad, AsksForADataFile) {
  MemoryDesk desk;
  desk.Load();
  desk.Check();
  ASSERT_EQ(desk.Desk.World.Dialogs.Requests.size(), 2U);
  for (const FileDialogRequest& request : desk.Desk.World.Dialogs.Requests) {
    EXPECT_EQ(request.Title, "Открытие базы данных");
    EXPECT_EQ(request.Filter, "Data Files (*.dat)|*.dat");
  }
}

TEST(DataManagerLoad, AsksInTheFolderOfTheCatalogue) {
  MemoryDesk desk;
  desk.Desk.Load("");
  desk.Files.Content["/другая/a.dat"] = NumberedFile(1);
  desk.Desk.Load("/другая/a.dat");
  desk.Check();
  const auto& asked = desk.Desk.World.Dialogs.Requests;
  ASSERT_EQ(asked.size(), 3U);
  // That of the program first, then that of the file in use.
  EXPECT_EQ(asked[0].Folder, "/program");
  EXPECT_EQ(asked[1].Folder, "/program");
  EXPECT_EQ(asked[2].Folder, "/другая");
}

TEST(DataManagerLoad, TellsWhenNoFileWasChosen) {
  for (const std::string path : {"", " "}) {
    MemoryDesk desk;
    desk.Desk.Load(path);
    EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{Told("Data file has not got !")});
    EXPECT_EQ(desk.Desk.Counts(), "0/0");
    EXPECT_EQ(desk.Desk.Ended, 0);
  }
}

TEST(DataManagerLoad, TellsWhenTheFileIsNotThere) {
  for (const std::string path : {"/data/other.dat", "  "}) {
    MemoryDesk desk;
    desk.Desk.Load(path);
    EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{Told("Data file not exists !")});
    EXPECT_EQ(desk.Desk.Form.DataPath, "");
    EXPECT_EQ(desk.Desk.Ended, 0);
  }
}

TEST(DataManagerLoad, EndsTheProgramWhereTheFileDoesNotOpen) {
  MemoryDesk desk(NumberedFile(3));
  desk.Files.Refused[desk.Path] = ErrorNumber::PermissionDenied;
  desk.Load();
  EXPECT_EQ(desk.Desk.Messages.Shown, std::vector{test::noDescriptor});
  EXPECT_EQ(desk.Desk.Ended, 1);
  EXPECT_EQ(desk.Desk.ToldBeforeTheEnd, 1U);
  EXPECT_EQ(desk.Desk.Form.TotalPos, 0);
}

TEST(DataManagerLoad, ShowsTheFirstRecordAndTheCount) {
  MemoryDesk desk(NumberedFile(3));
  desk.Load();
  EXPECT_EQ(desk.Desk.Boxes(), NumberedBoxes(1));
  EXPECT_EQ(desk.Desk.Counts(), "1/3");
  EXPECT_EQ(desk.Desk.Form.DataPath, desk.Path);
  EXPECT_EQ(desk.Desk.Form.Records.LowerBound(), 1);
  EXPECT_EQ(desk.Desk.Form.Records.UpperBound(), 3);
  EXPECT_EQ(desk.Desk.Form.Records[3], test::NumberedRecord(3));
  EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
}

TEST(DataManagerLoad, ShowsTheShippedFileInTheOrderOfTheBoxes) {
  EmbeddedResources resources;
  // The block carries two bytes more than its records.
  MemoryDesk desk(std::string(resources.CustomBlock(102)));
  desk.Load();
  EXPECT_EQ(desk.Desk.Boxes(),
            (Texts{"L25x16x3       ", "Уголок неравнополочный по ГОСТ 8510-86*           ", "25",
                   "16", "3", "3", "3.5", "1.2", "1.16", "0.7", "0.22", "0.43", "0.19", "4.2",
                   "8.6", "0.0091"}));
  EXPECT_EQ(desk.Desk.Counts(), "1/2698");
}

TEST(DataManagerLoad, ShowsNumbersInTheFormOfTheUsersSystem) {
  MemoryDesk desk(NumberedFile(1), test::CommaLocale());
  desk.Load();
  EXPECT_EQ(desk.Desk.Form.Text[3].Text(), "1,125");
  EXPECT_EQ(desk.Desk.Form.Text[4].Text(), "1");
}

TEST(DataManagerLoad, ReplacesWhatWasLoadedBefore) {
  MemoryDesk desk(NumberedFile(5));
  desk.Load();
  desk.Desk.Form.cmdLastpoz_Click();
  desk.Files.Content["/data/second.dat"] = test::BytesOf(test::NumberedRecord(77));
  desk.Desk.Load("/data/second.dat");
  EXPECT_EQ(desk.Desk.Boxes(), NumberedBoxes(77));
  EXPECT_EQ(desk.Desk.Counts(), "1/1");
  EXPECT_EQ(desk.Desk.Form.Records.UpperBound(), 1);
  EXPECT_EQ(desk.Desk.Form.DataPath, "/data/second.dat");
}

TEST(DataManagerLoad, KeepsWhatWasLoadedWhenTheUserCancels) {
  MemoryDesk desk(NumberedFile(5));
  desk.Load();
  desk.Desk.Form.cmdForv_Click();
  desk.Desk.Load("");
  desk.Desk.Load("/data/other.dat");
  EXPECT_EQ(desk.Desk.Boxes(), NumberedBoxes(2));
  EXPECT_EQ(desk.Desk.Counts(), "2/5");
  EXPECT_EQ(desk.Desk.Form.DataPath, desk.Path);
}

TEST(DataManagerLoad, ForgetsEverythingWhenTheWindowOpensAgain) {
  MemoryDesk desk(NumberedFile(5));
  desk.Load();
  desk.Desk.Form.Exit_Click();
  EXPECT_EQ(desk.Desk.Closed, 1);
  desk.Desk.Form.Form_Load();
  EXPECT_FALSE(desk.Desk.Form.Records.IsAllocated());
  EXPECT_EQ(desk.Desk.Form.DataPath, "");
  EXPECT_EQ(desk.Desk.Boxes(), Texts(16));
  EXPECT_EQ(desk.Desk.Counts(), "0/0");
}

/// Bytes in a file and the records that they count as.
struct OddLength {
  std::size_t Bytes;
  Long Records;
};

TEST(DataManagerLoad, RoundsTheCountOfRecordsToTheNearestNumber) {
  for (const OddLength& length : std::vector<OddLength>{{0, 0},
                                                        {1, 0},
                                                        {88, 0},
                                                        {89, 1},
                                                        {176, 1},
                                                        {177, 1},
                                                        {178, 1},
                                                        {265, 1},
                                                        {266, 2},
                                                        {353, 2},
                                                        {354, 2},
                                                        {442, 2},
                                                        {443, 3}}) {
    MemoryDesk desk(NumberedFile(3).substr(0, length.Bytes));
    desk.Load();
    EXPECT_EQ(desk.Desk.Form.TotalPos, length.Records) << length.Bytes;
    EXPECT_EQ(desk.Desk.Counts(), "1/" + std::to_string(length.Records)) << length.Bytes;
    ASSERT_TRUE(desk.Desk.Form.Records.IsAllocated());
    EXPECT_EQ(desk.Desk.Form.Records.UpperBound(), length.Records) << length.Bytes;
    EXPECT_TRUE(desk.Desk.Messages.Shown.empty()) << length.Bytes;
    if (length.Bytes >= 177) {
      EXPECT_EQ(desk.Desk.Boxes(), NumberedBoxes(1)) << length.Bytes;
    }
  }
}

TEST(DataManagerLoad, TakesOfACutRecordWhatIsThere) {
  MemoryDesk desk(NumberedFile(1).substr(0, 89));
  desk.Load();
  const ProfileRec& record = desk.Desk.Form.Records[1];
  EXPECT_EQ(record.Name, "L1");
  EXPECT_EQ(record.Type, "Уголок 1");
  EXPECT_EQ(record.B, 1);
  EXPECT_EQ(record.H, 1.125);
  EXPECT_EQ(record.t, 1.25);
  EXPECT_EQ(record.s, 0);
  EXPECT_EQ(record.z0, 0);
}

TEST(DataManagerLoad, MovesThroughAFileWithoutRecords) {
  for (const std::size_t bytes : {0U, 88U}) {
    MemoryDesk desk(std::string(bytes, 'x'));
    desk.Load();
    desk.Desk.Form.cmdForv_Click();
    desk.Desk.Form.cmdLastpoz_Click();
    EXPECT_EQ(desk.Desk.Counts(), "0/0");
    desk.Desk.Form.cmdFirst_Click();
    desk.Desk.Form.cmdPrew_Click();
    desk.Desk.Form.cmdEditCurrent_Click();
    EXPECT_EQ(desk.Data(), std::string(bytes, 'x'));
    EXPECT_EQ(desk.Desk.Messages.Shown,
              (std::vector{Told("Last position reached !"), Told("Fist position reached !")}));
    EXPECT_EQ(desk.Desk.Ended, 0);
  }
}

TEST(DataManagerLoad, PassesOverANumberThatIsNone) {
  for (const double odd :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity()}) {
    ProfileRec record = test::NumberedRecord(2);
    record.A = odd;
    MemoryDesk desk(NumberedFile(1) + test::BytesOf(record) + test::BytesOf(record));
    desk.Load();
    desk.Desk.Form.cmdForv_Click();
    Texts expected = NumberedBoxes(2);
    // Its box keeps the text of the record before; all others are shown.
    expected[8] = NumberedBoxes(1)[8];
    EXPECT_EQ(desk.Desk.Boxes(), expected);
    EXPECT_EQ(desk.Desk.Counts(), "2/3");
    EXPECT_TRUE(desk.Desk.Messages.Shown.empty());
  }
}

/// Files one of which says that it is longer than any count of records.
class EndlessFile : public test::MemoryFiles {
 public:
  std::uint64_t FileLength(const std::string& path) override {
    return path == Endless ? std::uint64_t{1} << 50 : MemoryFiles::FileLength(path);
  }
  const std::string Endless = "/data/endless.dat";
};

TEST(DataManagerLoad, TellsOfAFileWithMoreRecordsThanItCanNumber) {
  EndlessFile files;
  files.Content[files.Endless] = "";
  test::DataManagerDesk desk(files);
  desk.Load(files.Endless);
  ASSERT_EQ(desk.Messages.Shown.size(), 1U);
  EXPECT_EQ(desk.Messages.Shown[0].Text, " Err # 6 Discription : Overflow");
  EXPECT_EQ(desk.Counts(), "0/0");
}

TEST(DataManagerLoad, NeverWritesIntoAFileWhoseRecordsItCouldNotRead) {
  EndlessFile files;
  files.Content["/data/first.dat"] = NumberedFile(3);
  files.Content[files.Endless] = std::string(600, 'x');
  test::DataManagerDesk desk(files);
  desk.Load("/data/first.dat");
  desk.Load(files.Endless);
  desk.Type({"typed"});
  desk.Form.cmdEditCurrent_Click();
  EXPECT_EQ(files.Content[files.Endless], std::string(600, 'x'));
}

}  // namespace
}  // namespace trelonit
