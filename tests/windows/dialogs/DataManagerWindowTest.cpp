#include <QMenu>
#include <QMenuBar>

#include "tests/windows/dialogs/ManagerScreen.h"

namespace trelonit::test {
namespace {

const Texts firstTold{"Fist position reached !"};
const Texts lastTold{"Last position reached !"};

TEST(DataManagerWindowTexts, HasItsTitle) {
  ManagerScreen screen;
  EXPECT_EQ(FromQt(screen.Window.windowTitle()), "Менеджер базы данных проката ");
}

TEST(DataManagerWindowTexts, CaptionsTheSixteenBoxes) {
  ManagerScreen screen;
  Texts captions;
  for (Long number = 1; number <= managerBoxes; ++number) {
    captions.push_back(CaptionOf(screen.Window, screen.Box(number)));
  }
  EXPECT_EQ(captions, (Texts{"Name", "Type", "H = мм", "B = мм", "s =  мм", "t = мм", "r1 = мм",
                             "r2 =  мм", "A =  см", "Jy = см4", "Jz  = см4", "Wy = см3", "Wz = см3",
                             "y0 = мм", "z0 = мм", "P =  кг/см"}));
}

TEST(DataManagerWindowTexts, CaptionsAndHintsOfTheCommands) {
  ManagerScreen screen;
  const auto hint = [&](const char* name) { return FromQt(screen.Button(name).toolTip()); };
  const auto caption = [&](const char* name) {
    return FromQt(screen.Button(name).text().remove(QLatin1Char('&')));
  };
  EXPECT_EQ(caption("cmdLoadDB"), "Загрузить БД");
  EXPECT_EQ(caption("cmdEditCurrent"), "Редактировать текущую запись");
  EXPECT_EQ(hint("cmdLoadDB"), "Загрузить файл Базы Данных");
  // A hint with a key behind it begins with its own words.
  EXPECT_TRUE(
      hint("cmdEditCurrent").starts_with("Внести в Базу Данных изменения для текущей записи"));
  EXPECT_TRUE(hint("cmdPrew").starts_with("на 1 позицию назад"));
  EXPECT_TRUE(hint("cmdForv").starts_with("на 1 позицию вперед"));
  EXPECT_TRUE(hint("cmdPrew100").starts_with("На 100 позиций назад"));
  EXPECT_TRUE(hint("cmdForv100").starts_with("на 100 позиций вперед"));
  EXPECT_TRUE(hint("cmdFirst").starts_with("Перейти в начало"));
  EXPECT_TRUE(hint("cmdLastpoz").starts_with("перейти в конец"));
}

TEST(DataManagerWindowTexts, HasOneMenuWithThreeEntries) {
  ManagerScreen screen;
  const auto* bar = screen.Window.findChild<QMenuBar*>();
  ASSERT_NE(bar, nullptr);
  ASSERT_EQ(bar->actions().size(), 1);
  EXPECT_EQ(FromQt(bar->actions()[0]->text().remove(QLatin1Char('&'))), "Файл");
  Texts entries;
  for (const QAction* action : bar->actions()[0]->menu()->actions()) {
    entries.push_back(FromQt(action->objectName() + "=" + action->text().remove(QLatin1Char('&'))));
  }
  EXPECT_EQ(entries, (Texts{"mnuLoadDB=Загрузить", "CheckueDB=Проверка", "Exit=Закрыть"}));
}

TEST(DataManagerWindowTexts, ShowsNothingAtTheStart) {
  ManagerScreen screen;
  EXPECT_EQ(screen.Seen(), Texts(16));
  EXPECT_EQ(screen.Counts(), "0/0");
  EXPECT_TRUE(Has(LabelsIn(screen.Window), "Текущая запись ="));
  EXPECT_TRUE(Has(LabelsIn(screen.Window), "Всего записей  ="));
}

TEST(DataManagerWindowLoad, ShowsTheFirstRecordAndTheCounts) {
  ManagerScreen screen(3);
  EXPECT_EQ(screen.Seen(), NumberedBoxes(1));
  EXPECT_EQ(screen.Counts(), "1/3");
  ASSERT_EQ(screen.Desk.World.Dialogs.Requests.size(), 1U);
  EXPECT_EQ(screen.Desk.World.Dialogs.Requests[0].Title, "Открытие базы данных");
  EXPECT_EQ(screen.Told(), Texts{});
}

TEST(DataManagerWindowLoad, IsAnEntryOfTheMenuWithAKeyToo) {
  ManagerScreen screen;
  screen.Data() = NumberedFile(2);
  screen.Desk.World.Dialogs.Names = {screen.Path};
  screen.Entry("mnuLoadDB").trigger();
  EXPECT_EQ(screen.Counts(), "1/2");
  screen.Data() = NumberedFile(4);
  screen.Desk.World.Dialogs.Names = {screen.Path};
  screen.Box(1).setFocus();
  Press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(screen.Counts(), "1/4");
}

TEST(DataManagerWindowLoad, TellsWhatIsWrongAndShowsNothing) {
  ManagerScreen screen;
  screen.Click("cmdLoadDB");
  EXPECT_EQ(screen.Told(), Texts{"Data file has not got !"});
  screen.Desk.World.Dialogs.Names = {"/nowhere.dat"};
  screen.Click("cmdLoadDB");
  EXPECT_EQ(screen.Told(), Texts{"Data file not exists !"});
  EXPECT_EQ(screen.Counts(), "0/0");
}

TEST(DataManagerWindowLoad, EndsTheProgramWhereTheFileCannotBeOpened) {
  ManagerScreen screen;
  screen.Files.Refused[screen.Path] = ErrorNumber::PermissionDenied;
  screen.Desk.World.Dialogs.Names = {screen.Path};
  screen.Click("cmdLoadDB");
  EXPECT_EQ(screen.Desk.Messages.Shown, std::vector{noDescriptor});
  EXPECT_EQ(screen.Desk.Ended, 1);
}

TEST(DataManagerWindowLoad, ShowsNumbersAsTheUserWritesThem) {
  ManagerScreen screen(1, CommaLocale());
  // B comes first in the file and second in the window.
  EXPECT_EQ(FromQt(screen.Box(4).text()), "1");
  EXPECT_EQ(FromQt(screen.Box(3).text()), "1,125");
}

TEST(DataManagerWindowBoxes, FollowTheForm) {
  ManagerScreen screen;
  for (Long number = 1; number <= managerBoxes; ++number) {
    screen.Desk.Form.Text[number].SetText("t" + std::to_string(number));
  }
  for (Long number = 1; number <= managerBoxes; ++number) {
    EXPECT_EQ(FromQt(screen.Box(number).text()), "t" + std::to_string(number));
  }
  screen.Desk.Form.lblCurr.SetCaption("7");
  screen.Desk.Form.lblTotal.SetCaption("9");
  EXPECT_EQ(screen.Counts(), "7/9");
}

TEST(DataManagerWindowBoxes, TellTheFormWhatIsTyped) {
  ManagerScreen screen(1);
  for (Long number = 1; number <= managerBoxes; ++number) {
    Type(screen.Box(number), std::to_string(100 + number));
  }
  for (Long number = 1; number <= managerBoxes; ++number) {
    EXPECT_EQ(screen.Desk.Form.Text[number].Text(), std::to_string(100 + number));
  }
}

TEST(DataManagerWindowBoxes, ShowTheWholeTextsOfARecord) {
  ManagerScreen screen(1);
  EXPECT_EQ(screen.Box(1).text().size(), 15);
  EXPECT_EQ(screen.Box(2).text().size(), 50);
}

/// A step of the pagesWalk through 250 records: what is pressed, where it leads, what it says.
struct Step {
  const char* Command;
  Qt::Key Key;
  Qt::KeyboardModifiers Modifiers;
  Long Position;
  Texts Told;
};
const std::vector<Step> pagesWalk{
    {"cmdPrew", Qt::Key_PageUp, Qt::NoModifier, 1, firstTold},
    {"cmdForv", Qt::Key_PageDown, Qt::NoModifier, 2, {}},
    {"cmdPrew", Qt::Key_PageUp, Qt::NoModifier, 1, {}},
    {"cmdForv100", Qt::Key_PageDown, Qt::ControlModifier, 101, {}},
    {"cmdPrew100", Qt::Key_PageUp, Qt::ControlModifier, 1, firstTold},
    {"cmdForv100", Qt::Key_PageDown, Qt::ControlModifier, 101, {}},
    {"cmdForv", Qt::Key_PageDown, Qt::NoModifier, 102, {}},
    {"cmdPrew100", Qt::Key_PageUp, Qt::ControlModifier, 2, {}},
    {"cmdLastpoz", Qt::Key_End, Qt::ControlModifier, 250, {}},
    {"cmdForv", Qt::Key_PageDown, Qt::NoModifier, 250, lastTold},
    {"cmdPrew100", Qt::Key_PageUp, Qt::ControlModifier, 150, {}},
    {"cmdForv100", Qt::Key_PageDown, Qt::ControlModifier, 250, lastTold},
    {"cmdFirst", Qt::Key_Home, Qt::ControlModifier, 1, {}},
};

TEST(DataManagerWindowWalk, GoesByTheButtons) {
  ManagerScreen screen(250);
  for (const Step& step : pagesWalk) {
    screen.Click(step.Command);
    EXPECT_EQ(screen.Counts(), std::to_string(step.Position) + "/250") << step.Command;
    EXPECT_EQ(screen.Seen(), NumberedBoxes(step.Position)) << step.Command;
    EXPECT_EQ(screen.Told(), step.Told) << step.Command;
  }
}

/// Goes the pagesWalk by keys; the focus is put somewhere before each.
void WalkByKeys(ManagerScreen& screen, const std::function<QWidget&(std::size_t)>& place) {
  for (std::size_t number = 0; number < pagesWalk.size(); ++number) {
    const Step& step = pagesWalk[number];
    place(number).setFocus();
    Press(step.Key, step.Modifiers);
    EXPECT_TRUE(Soon([&] {
      return screen.Counts() == std::to_string(step.Position) + "/250" &&
             screen.Desk.Messages.Shown.size() == step.Told.size();
    })) << number
        << ' ' << step.Command << ' ' << screen.Counts();
    EXPECT_EQ(screen.Told(), step.Told) << number << ' ' << step.Command;
  }
}

TEST(DataManagerWindowWalk, GoesByKeysAloneFromAnyBox) {
  ManagerScreen screen(250);
  WalkByKeys(screen, [&](std::size_t step) -> QWidget& {
    return screen.Box(static_cast<Long>(step) % managerBoxes + 1);
  });
}

TEST(DataManagerWindowWalk, GoesByKeysAloneFromAButton) {
  ManagerScreen screen(250);
  WalkByKeys(screen, [&](std::size_t) -> QWidget& { return screen.Button("cmdLoadDB"); });
}

TEST(DataManagerWindowWalk, LosesNoStepOfAKeyThatIsHeldDown) {
  ManagerScreen screen(250);
  screen.Box(1).setFocus();
  for (int step = 0; step < 5; ++step) {
    Press(Qt::Key_PageDown);
  }
  EXPECT_TRUE(Soon([&] { return screen.Counts() == "6/250"; })) << screen.Counts();
}

TEST(DataManagerWindowWalk, ShowsTheRecordBeforeItTellsTheEnd) {
  ManagerScreen screen(50);
  screen.Click("cmdLastpoz");
  Texts seen;
  screen.Desk.Messages.Watch = [&] { seen = screen.Seen(); };
  screen.Click("cmdPrew100");
  EXPECT_EQ(seen, NumberedBoxes(1));
}

TEST(DataManagerWindowWalk, TellsTheEndsWithNothingLoaded) {
  ManagerScreen screen;
  screen.Click("cmdPrew");
  EXPECT_EQ(screen.Told(), firstTold);
  screen.Click("cmdForv");
  EXPECT_EQ(screen.Told(), lastTold);
  screen.Click("cmdEditCurrent");
  EXPECT_EQ(screen.Told(), Texts{"Не загружена база данных !"});
}

TEST(DataManagerWindowKeyboard, TabReachesEveryInputOnceAndTheBoxesInTheirOrder) {
  ManagerScreen screen;
  screen.Box(1).setFocus();
  const std::vector<QWidget*> reached = WalkByTab();
  ASSERT_GE(reached.size(), 16U);
  for (Long number = 1; number <= managerBoxes; ++number) {
    EXPECT_EQ(reached[static_cast<std::size_t>(number - 1)], &screen.Box(number)) << number;
  }
  ExpectTabReachesEveryInputOnce(screen.Window);
}

TEST(DataManagerWindowKeyboard, TheBoxesStandInTheirOrderDownTheWindow) {
  ManagerScreen screen;
  for (Long number = 2; number <= managerBoxes; ++number) {
    const QPoint from = screen.Box(number - 1).geometry().center();
    const QPoint to = screen.Box(number).geometry().center();
    EXPECT_TRUE(to.y() > from.y() || to.x() > from.x()) << number;
  }
}

TEST(DataManagerWindowKeyboard, EveryInputHasANameToBeReadAloud) {
  ManagerScreen screen;
  ExpectEveryInputHasAName(screen.Window);
}

}  // namespace
}  // namespace trelonit::test
