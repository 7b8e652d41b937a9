#include "editor/dialogs/DateForms.h"
#include "editor/dialogs/frmDate.h"
#include "tests/editor/undo/UndoDesk.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {
namespace {

using Texts = std::vector<std::string>;

TEST(DateForms, AreEight) {
  EXPECT_EQ(DateFormList({2026, 1, 2, 3, 4, 5}),
            (Texts{"02/01/26", "2/01/26", "02/01/2026", "2026-01-02", "пятница, 2 января 2026",
                   "03:04:05-(24 hr)", "3:04:05", "02.01.2026 3:04:05"}));
  EXPECT_EQ(DateFormList({1999, 12, 31, 23, 59, 0}),
            (Texts{"31/12/99", "31/12/99", "31/12/1999", "1999-12-31", "пятница, 31 декабря 1999",
                   "23:59:00-(24 hr)", "23:59:00", "31.12.1999 23:59:00"}));
}

TEST(DateForms, KeepTheirZeros) {
  const ClockReading midnight{2005, 3, 9, 0, 0, 0};
  EXPECT_EQ(DateForm(0, midnight), "09/03/05");
  EXPECT_EQ(DateForm(1, midnight), "9/03/05");
  EXPECT_EQ(DateForm(5, midnight), "00:00:00");
  EXPECT_EQ(DateForm(6, midnight), "0:00:00");
}

TEST(DateForms, NameEveryWeekday) {
  const Texts names{"понедельник", "вторник", "среда",      "четверг",
                    "пятница",     "суббота", "воскресенье"};
  for (int day = 0; day < 7; ++day) {
    // 26 February 2024 was a Monday; the week runs over a leap day.
    const ClockReading reading =
        day < 4 ? ClockReading{2024, 2, 26 + day} : ClockReading{2024, 3, day - 3};
    const std::string form = DateForm(4, reading);
    EXPECT_EQ(form.substr(0, form.find(',')), names[static_cast<std::size_t>(day)]);
  }
  EXPECT_EQ(DateForm(4, {2000, 2, 29}), "вторник, 29 февраля 2000");
  EXPECT_EQ(DateForm(4, {1900, 3, 1}), "четверг, 1 марта 1900");
}

TEST(DateForms, NameTheWeekdayInEveryMonth) {
  const Texts firstDays{"четверг", "воскресенье", "воскресенье", "среда",
                        "пятница", "понедельник", "среда",       "суббота",
                        "вторник", "четверг",     "воскресенье", "вторник"};
  for (int month = 1; month <= 12; ++month) {
    const std::string form = DateForm(4, {2026, month, 1});
    EXPECT_EQ(form.substr(0, form.find(',')), firstDays[static_cast<std::size_t>(month - 1)])
        << month;
  }
}

TEST(DateForms, NameTheWeekdayRoundTheLeapDaysOfCenturies) {
  // Of the centuries' years only every fourth has a leap day: 2000 has one, 2100 has none.
  EXPECT_EQ(DateForm(4, {2000, 1, 1}), "суббота, 1 января 2000");
  EXPECT_EQ(DateForm(4, {2000, 3, 1}), "среда, 1 марта 2000");
  EXPECT_EQ(DateForm(4, {2000, 12, 31}), "воскресенье, 31 декабря 2000");
  EXPECT_EQ(DateForm(4, {2100, 2, 28}), "воскресенье, 28 февраля 2100");
  EXPECT_EQ(DateForm(4, {2100, 3, 1}), "понедельник, 1 марта 2100");
}

TEST(DateForms, NameEveryMonth) {
  const Texts names{"января", "февраля", "марта",    "апреля",  "мая",    "июня",
                    "июля",   "августа", "сентября", "октября", "ноября", "декабря"};
  for (int month = 1; month <= 12; ++month) {
    const std::string form = DateForm(4, {2026, month, 15});
    EXPECT_NE(form.find(" 15 " + names[static_cast<std::size_t>(month - 1)] + " 2026"),
              std::string::npos)
        << form;
  }
}

TEST(DateForms, RaiseForAnotherIndex) {
  EXPECT_THROW(DateForm(-1, {2026, 1, 1}), RuntimeError);
  EXPECT_THROW(DateForm(8, {2026, 1, 1}), RuntimeError);
}

class Date : public ::testing::Test, protected UndoDesk {
 protected:
  Date() {
    form.Unload = [this] { ++unloads; };
    form.Form_Load();
  }
  using Texts = std::vector<std::string>;
  FrozenClock clock;
  frmDate form{undo, clock};
  int unloads = 0;
};

TEST_F(Date, OffersTheFormsOfTheMomentItOpens) {
  EXPECT_EQ(form.List1.List(), DateFormList(clock.Reading));
}

TEST_F(Date, InsertsTheDateOfTheMomentItIsChosen) {
  Hold("ab");
  box.SetSelStart(1);
  form.List1.Select(5);
  clock.Reading.Second = 59;
  form.cmdOK_Click();
  EXPECT_EQ(box.Text(), "a03:04:59\r\nb");
  EXPECT_EQ(Selection(), (TextSpan{11, 0}));
  EXPECT_EQ(undo.UndoCount(), 1);
  EXPECT_EQ(unloads, 1);
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(Date, InsertsEachForm) {
  for (Long index = 0; index < dateFormCount; ++index) {
    Hold("");
    form.List1.Select(index);
    form.cmdOK_Click();
    EXPECT_EQ(box.Text(), DateForm(index, clock.Reading) + "\r\n");
  }
}

TEST_F(Date, InsertsNothingForAnyOtherIndex) {
  form.cmdOK_Click();
  form.List1.SetList(Texts(dateFormCount + 1, "form"));
  form.List1.Select(dateFormCount);
  form.cmdOK_Click();
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(undo.UndoCount(), 0);
  EXPECT_EQ(unloads, 2);
}

TEST_F(Date, InsertsNothingOnCancel) {
  form.List1.Select(0);
  form.cmdCancel_Click();
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(unloads, 1);
}

TEST_F(Date, HasNothingSelectedAtFirst) {
  form.List1.Select(3);
  form.Form_Load();
  EXPECT_EQ(form.List1.ListIndex(), ListBox::noSelection);
}

}  // namespace
}  // namespace trelonit::test
