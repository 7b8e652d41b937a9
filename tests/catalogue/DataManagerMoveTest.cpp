#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/catalogue/DataManagerDesk.h"

namespace trelonit {
namespace {

using test::MemoryDesk;
using test::NumberedBoxes;
using test::Told;

const Message first = Told("Fist position reached !");
const Message last = Told("Last position reached !");

using Command = void (frmDataManager::*)();

/// From a record, by a command, to a record; what is said.
struct Move {
  Long From;
  Command Click;
  Long To;
  std::vector<Message> Said;
};

/// Makes each of the moves in a file with as many records as the shipped one.
void Try(const std::vector<Move>& moves) {
  MemoryDesk memory(test::NumberedFile(2698));
  memory.Load();
  test::DataManagerDesk& desk = memory.Desk;
  for (const Move& move : moves) {
    desk.GoTo(move.From);
    ASSERT_EQ(desk.Form.CurPos, move.From);
    desk.Messages.Shown.clear();
    // The record stands in the boxes before the user reads that the end is reached.
    desk.Messages.Watch = [&] {
      EXPECT_EQ(desk.Boxes(), NumberedBoxes(move.To)) << move.From;
      EXPECT_EQ(desk.Counts(), std::to_string(move.To) + "/2698") << move.From;
    };
    (desk.Form.*move.Click)();
    desk.Messages.Watch = nullptr;
    EXPECT_EQ(desk.Form.CurPos, move.To) << move.From;
    EXPECT_EQ(desk.Boxes(), NumberedBoxes(move.To)) << move.From;
    EXPECT_EQ(desk.Counts(), std::to_string(move.To) + "/2698") << move.From;
    EXPECT_EQ(desk.Messages.Shown, move.Said) << move.From;
  }
}

TEST(DataManagerMove, GoesOneBackUntilTheFirst) {
  const Command back = &frmDataManager::cmdPrew_Click;
  Try({{2698, back, 2697, {}}, {2, back, 1, {}}, {1, back, 1, {first}}});
}

TEST(DataManagerMove, GoesOneForwardUntilTheLast) {
  const Command forward = &frmDataManager::cmdForv_Click;
  Try({{1, forward, 2, {}}, {2697, forward, 2698, {}}, {2698, forward, 2698, {last}}});
}

TEST(DataManagerMove, GoesAHundredBackOrToTheFirst) {
  const Command back = &frmDataManager::cmdPrew100_Click;
  Try({{2698, back, 2598, {}},
       {103, back, 3, {}},
       {102, back, 2, {}},
       {101, back, 1, {first}},
       {100, back, 1, {first}},
       {50, back, 1, {first}},
       {1, back, 1, {first}}});
}

TEST(DataManagerMove, GoesAHundredForwardOrToTheLast) {
  const Command forward = &frmDataManager::cmdForv100_Click;
  Try({{1, forward, 101, {}},
       {2596, forward, 2696, {}},
       {2597, forward, 2697, {}},
       {2598, forward, 2698, {last}},
       {2599, forward, 2698, {last}},
       {2650, forward, 2698, {last}},
       {2698, forward, 2698, {last}}});
}

TEST(DataManagerMove, GoesToTheEndsWithoutAWord) {
  Try({{1000, &frmDataManager::cmdFirst_Click, 1, {}},
       {1, &frmDataManager::cmdFirst_Click, 1, {}},
       {1000, &frmDataManager::cmdLastpoz_Click, 2698, {}},
       {2698, &frmDataManager::cmdLastpoz_Click, 2698, {}}});
}

TEST(DataManagerMove, TellsTheEndsWithNothingLoaded) {
  MemoryDesk memory;
  test::DataManagerDesk& desk = memory.Desk;
  desk.Form.cmdPrew_Click();
  desk.Form.cmdForv_Click();
  EXPECT_EQ(desk.Messages.Shown, (std::vector{first, last}));
  EXPECT_EQ(desk.Counts(), "0/0");
}

/// A command with nothing loaded: the position after it and what is said.
struct EmptyMove {
  Command Click;
  Long To;
  std::vector<Message> Said;
};

TEST(DataManagerMove, SetsThePositionWithNothingLoadedAndShowsNoRecord) {
  for (const EmptyMove& move :
       std::vector<EmptyMove>{{&frmDataManager::cmdPrew100_Click, 1, {first}},
                              {&frmDataManager::cmdForv100_Click, 0, {last}},
                              {&frmDataManager::cmdFirst_Click, 1, {}},
                              {&frmDataManager::cmdLastpoz_Click, 0, {}}}) {
    MemoryDesk memory;
    (memory.Desk.Form.*move.Click)();
    EXPECT_EQ(memory.Desk.Form.CurPos, move.To);
    EXPECT_EQ(memory.Desk.Form.lblCurr.Caption(), std::to_string(move.To));
    EXPECT_EQ(memory.Desk.Messages.Shown, move.Said);
    EXPECT_EQ(memory.Desk.Boxes(), std::vector<std::string>(16));
  }
}

TEST(DataManagerMove, StaysInAFileOfOneRecord) {
  MemoryDesk memory(test::NumberedFile(1));
  memory.Load();
  frmDataManager& form = memory.Desk.Form;
  for (const Command click : {&frmDataManager::cmdPrew_Click, &frmDataManager::cmdForv_Click,
                              &frmDataManager::cmdPrew100_Click, &frmDataManager::cmdForv100_Click,
                              &frmDataManager::cmdFirst_Click, &frmDataManager::cmdLastpoz_Click}) {
    (form.*click)();
    EXPECT_EQ(memory.Desk.Counts(), "1/1");
    EXPECT_EQ(memory.Desk.Boxes(), NumberedBoxes(1));
  }
  EXPECT_EQ(memory.Desk.Messages.Shown, (std::vector{first, last, first, last}));
}

}  // namespace
}  // namespace trelonit
