#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/windows/results/ResultsScreen.h"

namespace trelonit::test {
namespace {

/// What a user enters for one truss.
struct Task {
  int Scheme;
  std::string Panels;
  std::vector<Long> Groups;
};

void PrintTo(const Task& task, std::ostream* stream) {
  *stream << "scheme " << task.Scheme << ", " << task.Panels << " panels";
}

class WholeSession : public ::testing::TestWithParam<Task> {
 protected:
  static void Enter(ProgramScreen& screen) {
    const Task& task = GetParam();
    screen.Press("imgTreloType" + std::to_string(task.Scheme));
    screen.TypeInto("txtLengthF", "18");
    screen.TypeInto("txtHight", "1,8");
    screen.TypeInto("txtLenOporn", task.Scheme == 3 ? "" : "2.5");
    screen.PickIn("cmbPanelNum", task.Panels);
    Click(FindAccessible<QAbstractButton>(*screen.Window, "Верхний пояс закреплен: Все узлы"));
    screen.Press("chkProgib");
    screen.PickIn("cmbLenlim", "1 / 250");
    screen.Press("optNP");

    screen.GoTo(1);
    int size = 20;
    for (const Long group : task.Groups) {
      screen.Press("optElementSection" + std::to_string(group));
      screen.Press(group == 1 ? "imgProfileSecSelect9" : "imgProfileSecSelect2");
      PickEntry(Find<QComboBox>(*screen.Window, "cmbSectType"), size++);
      if (group != 1) {
        screen.PickIn("cmbGdist", "10");
      }
    }

    screen.GoTo(2);
    for (const char* joint : {"1", "3", "4"}) {
      screen.PickIn("cmbKnotNum", joint);
      screen.TypeInto("txtForceVal", "2.4");
      screen.Press("cmdAddForce");
    }
    screen.Press("imgDistForce");
    screen.Press("chkAllPanels");
    screen.TypeInto("txtForceVal", "0.35");
    screen.Press("cmdAddForce");
    screen.Press("tglDwnPoyas");
    screen.TypeInto("txtForceVal", "0.1");
    screen.Press("cmdAddForce");
    screen.TypeInto("txtRy", "235");
  }
};

TEST_P(WholeSession, IsEnteredCalculatedSavedAndRestored) {
  const QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  const std::string path = FromQt(folder.filePath("ферма.tsav"));
  DiskFiles files;
  ProgramScreen first(files, FromQt(folder.path()));
  Enter(first);
  first.Press("cmdCalculate");
  EXPECT_EQ(first.Outside.Messages.Shown, Messages());
  ASSERT_EQ(first.Seen.size(), 1U);
  EXPECT_EQ(first.Seen[0].Heads, (std::vector<std::string>{"Проверка", "Коэффициент", "СНиП"}));
  EXPECT_EQ(first.Tabs().currentIndex(), 0);
  const QString deflection = Find<QLineEdit>(*first.Window, "txtProgib").text();
  EXPECT_FALSE(deflection.isEmpty());

  first.Outside.Dialogs.Names = {path};
  first.Trigger("SaveParam");
  EXPECT_EQ(first.Outside.Messages.Shown, Messages());

  ProgramScreen second(files, FromQt(folder.path()));
  second.Outside.Dialogs.Names = {path};
  second.Trigger("Restore");
  EXPECT_EQ(second.Outside.Messages.Shown, Messages());
  EXPECT_EQ(Find<QLineEdit>(*second.Window, "txtLengthF").text(), "18");
  EXPECT_EQ(Find<QComboBox>(*second.Window, "cmbLenlim").currentText(), "1 / 250");
  EXPECT_TRUE(Find<QAbstractButton>(*second.Window, "optNP").isChecked());
  second.Trigger("mnuCalc");
  ASSERT_EQ(second.Seen.size(), 1U);
  EXPECT_EQ(second.Seen[0], first.Seen[0]);
  EXPECT_EQ(Find<QLineEdit>(*second.Window, "txtProgib").text(), deflection);
  EXPECT_EQ(second.Outside.Messages.Shown, Messages());
}

TEST_P(WholeSession, ShowsWhatTheCalculationGave) {
  ProgramScreen screen;
  Enter(screen);
  screen.Press("cmdCalculate");
  ASSERT_EQ(screen.Seen.size(), 1U);
  ASSERT_TRUE(screen.Root.LastResults().has_value());
  EXPECT_EQ(screen.Seen[0].Rows, screen.Root.LastResults()->MSFlexGKoefUse);
  EXPECT_EQ(screen.Seen[0].Lines, screen.Root.LastResults()->lstForces);
  const bool verticals = GetParam().Scheme != 3;
  const auto& lines = screen.Seen[0].Lines;
  EXPECT_EQ(std::count(lines.begin(), lines.end(), " Стойки :"), verticals ? 1 : 0);
}

TEST_P(WholeSession, GivesTheSameResultsTwice) {
  ProgramScreen screen;
  Enter(screen);
  screen.Press("chkOwnWeight");
  screen.Press("cmdCalculate");
  screen.GoTo(2);
  screen.Press("cmdCalculate");
  ASSERT_EQ(screen.Seen.size(), 2U);
  EXPECT_EQ(screen.Seen[0], screen.Seen[1]);
}

INSTANTIATE_TEST_SUITE_P(Schemes, WholeSession,
                         ::testing::Values(Task{1, "8", {1, 2, 3, 4, 5}},
                                           Task{3, "7", {1, 2, 3, 5}}),
                         [](const auto& test) { return std::to_string(test.param.Scheme); });

}  // namespace
}  // namespace trelonit::test
