#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"
#include "workstation/results/TableFile.h"

namespace trelonit::test {
namespace {

class TableFile : public ::testing::Test {
 protected:
  Messages Told() { return std::exchange(outside.Messages.Shown, {}); }

  EmbeddedResources resources;
  World outside{resources};
  const ResultTable table{.Title = "t", .Columns = {{"a"}}, .Rows = {{std::string("1")}}};
};

TEST_F(TableFile, IsPutUnderTheNameThatTheUserGives) {
  outside.Dialogs.Names = {"/out/bars.csv"};
  SaveAsCsv(table, outside.Bundle());
  EXPECT_EQ(outside.Files.Content["/out/bars.csv"],
            "\xEF\xBB\xBF"
            "a\r\n1\r\n");
  ASSERT_EQ(outside.Dialogs.Requests.size(), 1U);
  EXPECT_EQ(outside.Dialogs.Requests[0].Extension, "csv");
  EXPECT_EQ(outside.Dialogs.Requests[0].Filter, "Таблица CSV (*.csv)|*.csv");
  EXPECT_TRUE(Told().empty());
}

TEST_F(TableFile, IsNotMadeWhereTheUserCancels) {
  bool written = false;
  SaveAsCsv(table, outside.Bundle());
  SaveAsSpreadsheet(
      table,
      [&](const ResultTable&) {
        written = true;
        return std::string();
      },
      outside.Bundle());
  EXPECT_FALSE(written);
  EXPECT_EQ(outside.Files.Writes, 0);
  EXPECT_TRUE(Told().empty());
}

TEST_F(TableFile, TakesAnOldOnesPlaceOnlyAfterAYes) {
  outside.Files.Content["/out/bars.csv"] = "old";
  outside.Dialogs.Names = {"/out/bars.csv"};
  outside.Messages.Answers = {MessageAnswer::No};
  SaveAsCsv(table, outside.Bundle());
  EXPECT_EQ(outside.Files.Content["/out/bars.csv"], "old");
  outside.Dialogs.Names = {"/out/bars.csv"};
  outside.Messages.Answers = {MessageAnswer::Yes};
  SaveAsCsv(table, outside.Bundle());
  EXPECT_NE(outside.Files.Content["/out/bars.csv"], "old");
}

TEST_F(TableFile, OfASpreadsheetHasTheBytesOfItsWriter) {
  outside.Dialogs.Names = {"/out/bars.xlsx"};
  SaveAsSpreadsheet(
      table, [](const ResultTable& given) { return "sheet of " + given.Title; }, outside.Bundle());
  EXPECT_EQ(outside.Files.Content["/out/bars.xlsx"], "sheet of t");
}

TEST_F(TableFile, TellsWhatKeepsItFromBeingWrittenAndLeavesTheOldOne) {
  outside.Files.Content["/out/bars.csv"] = "old";
  outside.Files.Refused["/out/bars.csv"] = ErrorNumber::PermissionDenied;
  outside.Dialogs.Names = {"/out/bars.csv"};
  outside.Messages.Answers = {MessageAnswer::Yes};
  SaveAsCsv(table, outside.Bundle());
  Messages told = Told();
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.back().Title, "mnuSaveCsv_Click");
  EXPECT_EQ(outside.Files.Content["/out/bars.csv"], "old");

  outside.Dialogs.Names = {"/out/bars.xlsx"};
  SaveAsSpreadsheet(
      table, [](const ResultTable&) -> std::string { throw RuntimeError(ErrorNumber::DiskFull); },
      outside.Bundle());
  told = Told();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0], Tail("mnuSaveXlsx_Click", 61, "Disk full"));
  EXPECT_EQ(outside.Files.Content.count("/out/bars.xlsx"), 0U);
}

}  // namespace
}  // namespace trelonit::test
