#include <chrono>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/TestServices.h"
#include "workstation/design/Loads.h"
#include "workstation/loads/LoadTable.h"
#include "workstation/loads/PastedTable.h"

namespace trelonit::test {
namespace {

/// Scheme 1 with 4 panels: 5 joints and 4 panels on each chord, 18 places.
class LoadsAsTable : public ::testing::Test {
 protected:
  LoadsAsTable() { ReDimLoads(state.Loads, 1, 4); }
  /// Takes an edit that must succeed.
  void Take(const LoadEdit& edit) {
    EXPECT_EQ(edit.Error, "");
    ASSERT_TRUE(edit.Loads.has_value());
    state.Loads = *edit.Loads;
  }
  std::string ErrorOf(const std::string& text, std::size_t row = 0) {
    const LoadEdit edit = PasteLoads(state, row, text);
    EXPECT_FALSE(edit.Loads.has_value());
    return edit.Error;
  }

  LoadState state;
};

TEST_F(LoadsAsTable, HasARowForEveryPlaceOfBothChords) {
  const std::vector<LoadRow> rows = LoadRows(state);
  ASSERT_EQ(rows.size(), 18U);
  EXPECT_EQ(LoadColumns(rows[0], PointLocale()),
            (std::vector<std::string>{"верхний", "узел", "0", ""}));
  EXPECT_EQ(LoadColumns(rows[8], PointLocale()),
            (std::vector<std::string>{"верхний", "панель", "3", ""}));
  EXPECT_EQ(LoadColumns(rows[17], PointLocale()),
            (std::vector<std::string>{"нижний", "панель", "3", ""}));
}

TEST_F(LoadsAsTable, ShowsOwnWeightInARowOfItsOwnThatNobodyEdits) {
  state.Loads.UpDistForce[1] = 1.5;
  OwnWeightState& own = state.OwnWeight;
  own = {.Added = true, .PerMetre = 0.0123};
  AddToDistributedLoads(state.Loads, own.PerMetre);
  const std::vector<LoadRow> rows = LoadRows(state);
  ASSERT_EQ(rows.size(), 19U);
  EXPECT_TRUE(rows[0].OwnWeight);
  EXPECT_EQ(LoadColumns(rows[0], CommaLocale()),
            (std::vector<std::string>{"оба", "собств. вес", "все", "0,0123"}));
  // The user's own loads are shown without it.
  EXPECT_EQ(rows[6].Value, 0);
  EXPECT_EQ(rows[7].Value, 1.5);
  EXPECT_FALSE(TypeLoad(state, 0, "5").Loads.has_value());
  EXPECT_FALSE(DeleteLoads(state, {0}).Loads.has_value());
  EXPECT_FALSE(PasteLoads(state, 0, "5\n6").Loads.has_value());
  // An edit leaves it inside.
  Take(TypeLoad(state, 6, "2"));
  EXPECT_DOUBLE_EQ(state.Loads.UpDistForce[0], 2.0123);
  EXPECT_DOUBLE_EQ(state.Loads.UpDistForce[2], 0.0123);
}

TEST_F(LoadsAsTable, TakesATypedValueWithEitherSeparator) {
  Take(TypeLoad(state, 2, "2,5"));
  Take(TypeLoad(state, 3, "-1.25"));
  EXPECT_EQ(state.Loads.UpPForce[2], 2.5);
  EXPECT_EQ(state.Loads.UpPForce[3], -1.25);
  Take(TypeLoad(state, 2, " "));
  EXPECT_EQ(state.Loads.UpPForce[2], 0);
  EXPECT_EQ(TypeLoad(state, 2, "много").Error, "«много» - не число.");
  EXPECT_EQ(TypeLoad(state, 2, "1e999").Error, "«1e999» - не число.");
}

TEST_F(LoadsAsTable, TakesATableOfASpreadsheet) {
  Take(PasteLoads(state, 0,
                  "Пояс\tМесто\t№\tВеличина\r\n"
                  "верхний\tузел\t1\t2,5\r\n"
                  "Верхний пояс\tПанель\t3\t1 234.5\r\n"
                  "НИЖНИЙ\tузел\t4\t-3\r\n"));
  EXPECT_EQ(state.Loads.UpPForce[1], 2.5);
  EXPECT_EQ(state.Loads.UpDistForce[3], 1234.5);
  EXPECT_EQ(state.Loads.DwnPForce[4], -3);
}

TEST_F(LoadsAsTable, TakesSemicolonsToo) {
  Take(PasteLoads(state, 0, "верх;узел;0;1,5\nниз;панель;2;\"0,25\""));
  EXPECT_EQ(state.Loads.UpPForce[0], 1.5);
  EXPECT_EQ(state.Loads.DwnDistForce[2], 0.25);
}

TEST_F(LoadsAsTable, TakesAColumnOfValuesFromTheChosenRowOn) {
  Take(PasteLoads(state, 1, "1\n2\n\n4\n"));
  EXPECT_EQ(state.Loads.UpPForce[1], 1);
  EXPECT_EQ(state.Loads.UpPForce[2], 2);
  EXPECT_EQ(state.Loads.UpPForce[3], 0);
  EXPECT_EQ(state.Loads.UpPForce[4], 4);
}

TEST_F(LoadsAsTable, TakesBackWhatItGave) {
  state.Loads.UpPForce[1] = 2.5;
  state.Loads.DwnDistForce[3] = -0.125;
  const LoadState before = state;
  std::vector<std::size_t> rows(18);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    rows[row] = row;
  }
  const std::string text = CopyLoads(state, rows, CommaLocale());
  EXPECT_EQ(text.substr(0, text.find('\n')), "верхний\tузел\t0\t");
  Take(DeleteLoads(state, rows));
  EXPECT_NE(state.Loads, before.Loads);
  Take(PasteLoads(state, 0, text));
  EXPECT_EQ(state.Loads, before.Loads);
}

TEST_F(LoadsAsTable, FillsTheFirstValueDown) {
  state.Loads.UpPForce[1] = 2.5;
  Take(FillLoadsDown(state, {3, 1, 2}));
  EXPECT_EQ(state.Loads.UpPForce[2], 2.5);
  EXPECT_EQ(state.Loads.UpPForce[3], 2.5);
  EXPECT_EQ(state.Loads.UpPForce[4], 0);
  EXPECT_NE(FillLoadsDown(state, {1}).Error, "");
  // Tonnes and tonnes per metre are not the same.
  EXPECT_NE(FillLoadsDown(state, {4, 5}).Error, "");
}

TEST_F(LoadsAsTable, TellsWrongColumnsInOneLine) {
  const LoadArrays before = state.Loads;
  EXPECT_EQ(ErrorOf("верхний\tузел\t1\n"),
            "Строка 1: столбцов 3, а нужно 4 (пояс, узел или панель, номер, величина) или один "
            "(величина).");
  EXPECT_EQ(ErrorOf("верхний\tузел\t1\t2\nверхний\tузел\t1\t2\t3"),
            "Строка 2: столбцов 5, а нужно 4 (пояс, узел или панель, номер, величина) или один "
            "(величина).");
  EXPECT_EQ(ErrorOf("средний\tузел\t1\t2"),
            "Строка 1: пояс «средний», а нужно «верхний» или «нижний».");
  EXPECT_EQ(ErrorOf("нижний\tстержень\t1\t2"),
            "Строка 1: «стержень», а нужно «узел» или «панель».");
  EXPECT_EQ(ErrorOf("нижний\tузел\t1,5\t2"), "Строка 1: номер «1,5», а нужно целое число от 0.");
  EXPECT_EQ(ErrorOf("верхний\tузел\t0\t1\nнижний\tузел\t12\t2"),
            "Строка 2: нет узла 12 нижнего пояса, последний номер 4.");
  EXPECT_EQ(ErrorOf("нижний\tузел\t1\tмного"), "Строка 1: «много» - не число.");
  EXPECT_EQ(ErrorOf("нижний\tузел\t1\t2\nверхний\tузел\t1\t2\nнижний\tузел\t1\t3"),
            "Строка 3: узел 1 нижнего пояса уже есть в строке 1.");
  EXPECT_EQ(state.Loads, before);
}

TEST_F(LoadsAsTable, TellsTextThatIsNoTable) {
  EXPECT_EQ(ErrorOf(""), "В буфере обмена нет таблицы.");
  EXPECT_EQ(ErrorOf(" \n\t\r\n"), "В буфере обмена нет таблицы.");
  EXPECT_EQ(ErrorOf("привет"), "Строка 1: «привет» - не число.");
  EXPECT_EQ(ErrorOf("Здравствуйте!\nвот нагрузки"), "Строка 2: «вот нагрузки» - не число.");
  EXPECT_EQ(ErrorOf("1\n2\n3", 16), "Величин 3, а строк от выбранной до конца таблицы 2.");
  EXPECT_EQ(ErrorOf("1\n2\tx"),
            "Строка 2: столбцов 2, а нужно 4 (пояс, узел или панель, номер, "
            "величина) или один (величина).");
}

TEST_F(LoadsAsTable, RefusesPlacesThatAreNoWholeNumbers) {
  for (const std::string number : {"-1", "сто", "", "1000000"}) {
    const std::string error = ErrorOf("нижний\tузел\t" + number + "\t2");
    EXPECT_EQ(error, "Строка 1: номер «" + number + "», а нужно целое число от 0.");
  }
}

TEST_F(LoadsAsTable, TakesValuesOnlyWhereARowIsChosen) {
  EXPECT_EQ(ErrorOf("5\n6", 99), "Не выбрана строка, с которой начинать.");
  EXPECT_FALSE(TypeLoad(state, 99, "5").Loads.has_value());
}

TEST_F(LoadsAsTable, PassesOverEmptyLinesAndOwnWeightOfATable) {
  Take(PasteLoads(state, 0,
                  "верхний\tузел\t1\t2\n\nоба\tсобств. вес\tвсе\t0.0123\nнижний\tузел\t2\t3"));
  EXPECT_EQ(state.Loads.UpPForce[1], 2);
  EXPECT_EQ(state.Loads.DwnPForce[2], 3);
  EXPECT_EQ(state.Loads.UpDistForce[0], 0);
}

TEST_F(LoadsAsTable, TellsALongTextByItsBeginning) {
  std::string text;
  for (int letter = 0; letter < 1000000; ++letter) {
    text += "ж";
  }
  const std::string error = ErrorOf(text);
  EXPECT_LT(error.size(), 200U);
  EXPECT_EQ(error.substr(error.size() - std::string("...» - не число.").size()),
            "...» - не число.");
}

TEST_F(LoadsAsTable, RefusesAHundredThousandRowsAtOnce) {
  std::string text;
  for (int row = 0; row < 100000; ++row) {
    text += "верхний\tузел\t1\t2,5\r\n";
  }
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(ErrorOf(text), "Строк 100000, а мест для нагрузок у этой фермы 18.");
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

RC_GTEST_FIXTURE_PROP(LoadsAsTable, AnyTextIsTakenWholeOrRefusedInOneLine, ()) {
  const auto piece = rc::gen::oneOf(
      rc::gen::element<std::string>("верхний", "нижний", "узел", "панель", "\t", ";", "\n", "\r\n",
                                    "0", "3", "99", "2,5", "-1.5", "1e400", "\"", " ", "\xD0"),
      rc::gen::string<std::string>());
  std::string text;
  for (const std::string& each : *rc::gen::container<std::vector<std::string>>(piece)) {
    text += each;
  }
  const LoadArrays before = state.Loads;
  const LoadEdit edit = PasteLoads(state, *rc::gen::inRange<std::size_t>(0, 20), text);
  RC_ASSERT(edit.Loads.has_value() == edit.Error.empty());
  RC_ASSERT(state.Loads == before);
  if (edit.Loads) {
    // The same places as before, each with a number.
    RC_ASSERT(LoadRows({.Loads = *edit.Loads}).size() == 18U);
  }
}

TEST(PastedText, IsCutIntoLinesWhateverEndsThem) {
  EXPECT_EQ(SplitPasted("a\r\nb\rc\n\n"), (std::vector<PastedLine>{{"a"}, {"b"}, {"c"}}));
  EXPECT_EQ(SplitPasted("a\n\nb"), (std::vector<PastedLine>{{"a"}, {}, {"b"}}));
  EXPECT_EQ(SplitPasted(" a \t\"b c\"\t"), (std::vector<PastedLine>{{"a", "b c"}}));
  EXPECT_EQ(CountPasted("a\n\nb\n"), 3U);
}

}  // namespace
}  // namespace trelonit::test
