#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "platform/text/CodePage1251.h"
#include "tests/workstation/design/SmallTruss.h"
#include "workstation/design/modHelper.h"
#include "workstation/design/modUtility.h"

namespace trelonit::test {
namespace {

BoundedArray<double> From(Long lower, const std::vector<double>& values) {
  BoundedArray<double> array(lower, lower - 1);
  for (const double value : values) {
    array.Append(value);
  }
  return array;
}

TEST(MaxOfTwoLong, GivesTheLarger) {
  EXPECT_EQ(MaxOfTwoLong(2, 3), 3);
  EXPECT_EQ(MaxOfTwoLong(3, 2), 3);
  EXPECT_EQ(MaxOfTwoLong(-3, -2), -2);
  EXPECT_EQ(MaxOfTwoLong(4, 4), 4);
}

TEST(StripToPrintable, KeepsDigitsLettersAndSomeSigns) {
  EXPECT_EQ(StripToPrintable("Trelo 1 / 120, \"a-b\"; 7.5:"), "Trelo1/120,\"a-b\";7.5:");
  EXPECT_EQ(StripToPrintable("Сталь С245 - лист"), "СтальС245-лист");
  EXPECT_EQ(StripToPrintable(""), "");
  EXPECT_EQ(StripToPrintable(" \t\r\n"), "");
}

TEST(StripToPrintable, DropsWhatLiesBetweenDigitsAndLetters) {
  EXPECT_EQ(StripToPrintable("9:;<=>?@AZ[\\]^_`az{|}~"), "9:;AZaz");
}

TEST(StripToPrintable, DropsTheLettersThatStandOutsideTheAlphabetsRun) {
  // Ё, ё and № have codes below that of А.
  EXPECT_EQ(StripToPrintable("№1 Ёлка ёж"), "1лкаж");
}

TEST(StripToPrintable, DropsWhatTheCodePageDoesNotHave) {
  EXPECT_EQ(StripToPrintable("a\u03B1b\u4E2Dc\U0001F600d"), "abcd");
}

TEST(StripToPrintable, GoesByTheCodeOfEveryCharacter) {
  for (int code = 0; code <= 255; ++code) {
    std::string text;
    AppendUtf8(text, FromCodePage1251(static_cast<unsigned char>(code)));
    const bool kept = (code >= 33 && code <= 59) || (code >= 65 && code <= 90) ||
                      (code >= 97 && code <= 122) || (code >= 192 && code <= 255);
    EXPECT_EQ(StripToPrintable(text), kept ? text : "") << code;
  }
}

TEST(MaxInArray, GivesTheGreatestElementFromTheLowerBoundOn) {
  RecordingMessages messages;
  EXPECT_EQ(MaxInArray(From(0, {9, 1, 2}), messages), 9);
  EXPECT_EQ(MaxInArray(From(0, {1, 2, 9}), messages), 9);
  EXPECT_EQ(MaxInArray(From(1, {4}), messages), 4);
  EXPECT_EQ(MaxInArray(From(-2, {8, 0, 0, 0, 1}), messages), 8);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(MaxInArray, MayBeNegative) {
  RecordingMessages messages;
  EXPECT_EQ(MaxInArray(From(1, {-5, -3, -4}), messages), -3);
}

TEST(MaxInArray, IsZeroForAnUpperBoundBelowOne) {
  RecordingMessages messages;
  EXPECT_EQ(MaxInArray(From(0, {7}), messages), 0);
  EXPECT_EQ(MaxInArray(From(0, {}), messages), 0);
  EXPECT_EQ(MaxInArray(From(-3, {7, 8}), messages), 0);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(MaxInArray, TellsAnUnallocatedArray) {
  RecordingMessages messages;
  EXPECT_EQ(MaxInArray({}, messages), 0);
  EXPECT_EQ(messages.Shown, Messages{SubscriptTail("MaxInArray")});
}

TEST(JoinDoubles, PutsTheDelimiterBetweenTheValues) {
  EXPECT_EQ(JoinDoubles(From(0, {1, -2.5, 0}), ";", PointLocale()), "1;-2.5;0");
  EXPECT_EQ(JoinDoubles(From(0, {1, -2.5, 0}), " ; ", CommaLocale()), "1 ; -2,5 ; 0");
  EXPECT_EQ(JoinDoubles(From(3, {7}), ";", PointLocale()), "7");
}

TEST(JoinDoubles, RaisesForAnUnallocatedArray) {
  try {
    JoinDoubles({}, ";", PointLocale());
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 9);
  }
}

TEST(SplitDoubles, ReadsEveryPieceAsANumber) {
  for (const NumberLocale& locale : {PointLocale(), CommaLocale()}) {
    const BoundedArray<double> values = SplitDoubles("1;2,5; -3.5 ;abc;", ";", locale);
    EXPECT_EQ(values.LowerBound(), 0);
    EXPECT_EQ(Values(values), (std::vector<double>{1, 2.5, -3.5, 0, 0}));
  }
}

TEST(SplitDoubles, OfATextWithoutTheDelimiterHasOneElement) {
  EXPECT_EQ(Values(SplitDoubles("4", ";", PointLocale())), std::vector<double>{4});
}

TEST(SplitDoubles, OfAnEmptyTextGivesOneZero) {
  const BoundedArray<double> values = SplitDoubles("", ";", PointLocale());
  EXPECT_EQ(values.LowerBound(), 0);
  EXPECT_EQ(Values(values), std::vector<double>{0});
}

TEST(SplitDoubles, TakesDelimitersOfSeveralCharacters) {
  EXPECT_EQ(Values(SplitDoubles("1--2--", "--", PointLocale())), (std::vector<double>{1, 2, 0}));
}

RC_GTEST_PROP(SplitDoubles, ReadsBackWhatJoinDoublesWrote, ()) {
  const auto thousandths = *rc::gen::nonEmpty<std::vector<int>>();
  std::vector<double> values;
  for (const int value : thousandths) {
    values.push_back(value / 1000.0);
  }
  for (const NumberLocale& locale : {PointLocale(), CommaLocale()}) {
    const std::string text = JoinDoubles(From(0, values), ";", locale);
    RC_ASSERT(Values(SplitDoubles(text, ";", locale)) == values);
  }
}

/// An outside world for the routines that ask it for files.
class FileQuestions : public ::testing::Test {
 protected:
  PartialResources resources;
  World outside{resources};
};

TEST_F(FileQuestions, AreAnsweredByTheFileSystem) {
  outside.Files.Content["/there"] = "";
  EXPECT_TRUE(IsThisFileExists("/there", outside.Bundle()));
  EXPECT_FALSE(IsThisFileExists("/elsewhere", outside.Bundle()));
  EXPECT_TRUE(outside.Messages.Shown.empty());
}

TEST_F(FileQuestions, WithoutAFileSystemAreToldAndDenied) {
  outside.Files.Content["/there"] = "";
  outside.Files.NoFileSystem = true;
  EXPECT_FALSE(IsThisFileExists("/there", outside.Bundle()));
  const Message told{"IsThisFileExists",
                     "Can't create Scripting.FileSystemObject object ! File not checked !",
                     MessageStyle::Critical};
  EXPECT_EQ(outside.Messages.Shown, Messages{told});
}

TEST_F(FileQuestions, FindTheHelpFileInAFolderWithAndWithoutASeparatorAtItsEnd) {
  for (const auto& [folder, path] :
       std::vector<std::pair<std::string, std::string>>{{"/program", "/program/a.chm"},
                                                        {"/program/", "/program/a.chm"},
                                                        {"C:\\", "C:\\a.chm"}}) {
    outside.ProgramFolder = folder;
    outside.Files.Content = {{path, ""}};
    EXPECT_EQ(FindHelpFile("a.chm", outside.Bundle()), path) << folder;
  }
  EXPECT_TRUE(outside.Messages.Shown.empty());
}

TEST_F(FileQuestions, TellWhereTheHelpFileShouldBe) {
  for (const char* folder : {"/program", "/program/"}) {
    outside.ProgramFolder = folder;
    outside.Messages.Shown.clear();
    EXPECT_EQ(FindHelpFile("a.chm", outside.Bundle()), "");
    const Message missing{"FindHelpFile", "\n Файл справки : /program/a.chm не найден !\n",
                          MessageStyle::Critical};
    EXPECT_EQ(outside.Messages.Shown, Messages{missing}) << folder;
  }
}

TEST_F(FileQuestions, TellBothThatTheFileIsUncheckedAndMissing) {
  outside.Files.NoFileSystem = true;
  EXPECT_EQ(FindHelpFile("a.chm", outside.Bundle()), "");
  ASSERT_EQ(outside.Messages.Shown.size(), 2U);
  EXPECT_EQ(outside.Messages.Shown[0].Title, "IsThisFileExists");
  EXPECT_EQ(outside.Messages.Shown[1].Title, "FindHelpFile");
}

TEST(LargestUse, IsTheLargestOfAllSevenCoefficients) {
  for (double GroupCheck::*coefficient :
       {&GroupCheck::KStrength, &GroupCheck::KStabX, &GroupCheck::KStabY, &GroupCheck::KFlexX,
        &GroupCheck::KFlexY, &GroupCheck::KUserX, &GroupCheck::KUserY}) {
    GroupCheck check{.KStrength = 0.5,
                     .KStabX = 0.5,
                     .KStabY = 0.5,
                     .KFlexX = 0.5,
                     .KFlexY = 0.5,
                     .KUserX = 0.5,
                     .KUserY = 0.5};
    check.*coefficient = 0.75;
    EXPECT_EQ(LargestUse(check), 0.75);
    check.*coefficient = 0.25;
    EXPECT_EQ(LargestUse(check), 0.5);
  }
}

TEST(LargestUse, LooksAtNothingElse) {
  GroupCheck check;
  check.FlexX = check.FlexY = check.AlphaX = check.PhiX = check.Area = check.LenX = 100;
  check.NMax.Value = 100;
  check.LimitX.Compress = 100;
  EXPECT_EQ(LargestUse(check), 0);
}

TEST(GroupInfo, ListsTheSectionOfEachGroup) {
  SmallTruss desk(1, CommaLocale());
  desk.Main.Model.Inputs.ElementSection[sectionOpornRaskos].Gdist = 12.5;
  ShowGroupInfo(desk.Main.Model, desk.Outside.Bundle());
  const Message info{debugFormTitle,
                     "Информация по выбраным типам проката : \n"
                     "Верхний пояс :\nТип сечения : 9\nТипоразмер : Тр50x2\n"
                     "Расстояние между профилями :0\n"
                     "Нижний пояс :\nТип сечения : 2\nТипоразмер : L25x16x3\n"
                     "Расстояние между профилями :10\n"
                     "Раскосы :\nТип сечения : 5\nТипоразмер : Шв5П\n"
                     "Расстояние между профилями :0\n"
                     "Опорный раскос :\nТип сечения : 6\nТипоразмер : Дт10\n"
                     "Расстояние между профилями :12,5\n"
                     "Стойки :\nТип сечения : 1\nТипоразмер : L25x16x3\n"
                     "Расстояние между профилями :0",
                     MessageStyle::Plain};
  EXPECT_EQ(desk.TakeMessages(), Messages{info});
}

}  // namespace
}  // namespace trelonit::test
