#ifndef _WIN32

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

struct Standard {
  const char* Name;
  std::size_t Sizes;
};

/// The standards in their order. Several names hold a Latin p, one ends without its year, one has
/// two blanks: the program finds them by these very characters.
constexpr std::array<Standard, 22> standards{{
    {"Уголок неравнополочный по ГОСТ 8510-86*", 62},
    {"Уголок равнополочный по ГОСТ 8509-93", 121},
    {"Швеллеp с паpаллельными гpанями полок по ГОСТ 8240", 18},
    {"Швеллеp с уклоном полок по ГОСТ 8240-89", 18},
    {"Двутавp с уклоном полок по ГОСТ 8239-89", 17},
    {"Двутавp нормальный (Б) по ГОСТ 26020-83", 37},
    {"Двутавp широкополочный по ГОСТ 26020-83", 26},
    {"Тавpы колонные (КТ) по ТУ 14-2-685-86", 14},
    {"Тавp ШТ по ТУ 14-2-685-86", 19},
    {"Гнутый швеллер ГОСТ 8278-83 из стали С239-С245", 172},
    {"Гнутый швеллер по ГОСТ 8278-83 из стали С255-С275", 134},
    {"Квадратные трубы по ГОСТ 30245-94", 59},
    {"Прямоугольные трубы по ГОСТ 30245-94", 73},
    {"Тpубы электросварные по ГОСТ 10704-91", 804},
    {"гнуто-сварные квадратные профили ГОСТ 30245-2003", 155},
    {"гнуто-сварные прямоугольные профили ГОСТ30245-2003", 424},
    {"Квадратные трубы по ГОСТ 12336-66", 52},
    {"Квадратные трубы по ТУ 36-2287-80", 26},
    {"Прямоугольные трубы по ГОСТ 12336-66", 84},
    {"Прямоугольные трубы по ТУ 67-2287-80", 39},
    {"Трубы стальные квадратные  по ГОСТ 8639-68", 96},
    {"Трубы стальные прямоугольные по ГОСТ 8645-68", 248},
}};

std::vector<std::size_t> Widths(const std::vector<std::string>& lines) {
  std::vector<std::size_t> widths;
  widths.reserve(lines.size());
  for (const std::string& line : lines) {
    // Bytes that continue a character stand for no column.
    widths.push_back(
        static_cast<std::size_t>(std::count_if(line.begin(), line.end(), [](char byte) {
          return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
        })));
  }
  return widths;
}

void ExpectEvenColumns(const std::vector<std::string>& table) {
  ASSERT_FALSE(table.empty());
  const std::vector<std::size_t> widths = Widths(table);
  EXPECT_EQ(std::count(widths.begin(), widths.end(), widths.front()),
            static_cast<std::ptrdiff_t>(widths.size()));
}

class CatalogueCommand : public CliTest {
 protected:
  std::vector<std::string> Printed(const std::vector<std::string>& arguments) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    EXPECT_TRUE(outcome.Out.ends_with("\n"));
    return Lines(outcome.Out);
  }

  std::vector<std::string> Shown(const std::string& standard, const std::string& size) {
    return Printed({"catalogue", "show", standard, size});
  }

  /// One line on standard error and nothing else.
  void ExpectNotFound(const std::vector<std::string>& arguments, const std::string& line) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.Status, failed) << line;
    EXPECT_EQ(outcome.Out, "") << line;
    EXPECT_EQ(outcome.Err, "trelonit-cli: " + line + "\n");
  }
};

TEST_F(CatalogueCommand, ListsEveryStandardWithItsNumberAndItsSizes) {
  const std::vector<std::string> lines = Printed({"catalogue", "list"});
  ASSERT_EQ(lines.size(), standards.size() + 1);
  EXPECT_EQ(Words(lines[0]), (std::vector<std::string>{"Стандарт", "№", "Размеров"}));
  ExpectEvenColumns(lines);
  for (std::size_t number = 1; number <= standards.size(); ++number) {
    const Standard& standard = standards[number - 1];
    const std::string& line = lines[number];
    EXPECT_TRUE(line.starts_with(std::string(standard.Name) + "  ")) << line;
    std::vector<std::string> words = Words(line);
    ASSERT_GT(words.size(), 2U);
    EXPECT_EQ(words.back(), std::to_string(standard.Sizes)) << line;
    EXPECT_EQ(words[words.size() - 2], std::to_string(number)) << line;
  }
}

TEST_F(CatalogueCommand, ShowsEverySizeOfAStandard) {
  for (std::size_t number = 1; number <= standards.size(); ++number) {
    const std::vector<std::string> lines = Printed({"catalogue", "show", std::to_string(number)});
    // The name of the standard and the head of the table come first.
    ASSERT_EQ(lines.size(), standards[number - 1].Sizes + 2) << number;
    EXPECT_EQ(lines[0], standards[number - 1].Name);
    ExpectEvenColumns({lines.begin() + 1, lines.end()});
    for (std::size_t line = 2; line < lines.size(); ++line) {
      EXPECT_EQ(Words(lines[line]).size(), 15U) << lines[line];
    }
  }
}

TEST_F(CatalogueCommand, ShowsTheNumbersOfASizeUnderTheNamesOfTheFields) {
  const std::string head =
      "Name       B   H  t  s   r1   r2     A   Jy    Jz       P    Wy    Wz   y0   z0";
  const std::string row =
      "L25x16x3  16  25  3  3  3.5  1.2  1.16  0.7  0.22  0.0091  0.43  0.19  4.2  8.6";
  EXPECT_EQ(Shown("1", "L25x16x3"),
            (std::vector<std::string>{"Уголок неравнополочный по ГОСТ 8510-86*", head, row}));
}

TEST_F(CatalogueCommand, ShowsOneSizeOfEveryFamily) {
  const auto expectRow = [this](const char* standard, const char* row) {
    const std::vector<std::string> expected = Words(row);
    const std::vector<std::string> lines = Shown(standard, expected.front());
    ASSERT_EQ(lines.size(), 3U) << row;
    EXPECT_EQ(Words(lines[2]), expected);
  };
  expectRow("2", "L20x3 20 20 3 3 3.5 1.2 1.13 0.4 0.4 0 0.28 0.28 6 6");
  expectRow("3", "Шв5П 32 50 7 4.4 6 3.5 6.16 22.8 5.95 0.04 9.1 2.99 12.1 0");
  expectRow("7", "20Ш1 150 193 9 6 13 0 38.95 2659.99 506.99 0.3 275 67.6 0 0");
  expectRow("8", "10KT1 200 94 10 6.5 13 0 26.19 129 666.99 0.2 16.3 66.7 0 15");
  expectRow("14", "Тр10x1 10 0 0 1 0 0 0.28 0.0289812 0.0289812 0 0.0579624 0.0579624 0 0");
  expectRow("16", "Тр50x25x2 25 50 2 2 4 4 2.74 8.38 2.8 2.15 3.35 2.24 0 0");
}

TEST_F(CatalogueCommand, TellsEqualDesignationsApartByTheirStandard) {
  // The same name under two steels: another fillet, and so another area.
  const std::vector<std::string> soft = Words(Shown("10", "Шв25x26x2").at(2));
  const std::vector<std::string> hard = Words(Shown("11", "Шв25x26x2").at(2));
  EXPECT_EQ(soft.at(7), "1.39");
  EXPECT_EQ(hard.at(7), "1.36");
}

TEST_F(CatalogueCommand, FindsAStandardByItsNameAsWellAsByItsNumber) {
  for (const std::size_t number : {std::size_t{2}, std::size_t{3}, std::size_t{21}}) {
    EXPECT_EQ(Printed({"catalogue", "show", standards[number - 1].Name}),
              Printed({"catalogue", "show", std::to_string(number)}));
  }
}

TEST_F(CatalogueCommand, TellsAStandardThatIsNotThere) {
  for (const char* standard :
       {"0", "23", "-1", "1.5", "99999999999999999999", "", "L25x16x3", "Двутавр",
        // With one blank and with a Cyrillic letter these are other names.
        "Трубы стальные квадратные по ГОСТ 8639-68", "Тавр ШТ по ТУ 14-2-685-86"}) {
    const std::string line = "в каталоге нет стандарта «" + std::string(standard) +
                             "»; номера и названия показывает «catalogue list»";
    ExpectNotFound({"catalogue", "show", standard}, line);
    ExpectNotFound({"catalogue", "show", standard, "L25x16x3"}, line);
  }
}

TEST_F(CatalogueCommand, TellsASizeThatIsNotThere) {
  for (const char* size : {"L25x16x4", "l25x16x3", "L25x16", "25", "*"}) {
    ExpectNotFound({"catalogue", "show", "1", size},
                   "в стандарте «Уголок неравнополочный по ГОСТ 8510-86*» нет типоразмера «" +
                       std::string(size) + "»");
  }
  ExpectNotFound({"catalogue", "show", "2", "L25x16x3"},
                 "в стандарте «Уголок равнополочный по ГОСТ 8509-93» нет типоразмера «L25x16x3»");
}

TEST_F(CatalogueCommand, TellsASizeThatOnlyBeginsLikeOneThatIsThere) {
  // The field of a designation has 15 characters; what lies behind them counts all the same.
  const std::string size = "L25x16x3       и ещё что-то";
  ExpectNotFound(
      {"catalogue", "show", "1", size},
      "в стандарте «Уголок неравнополочный по ГОСТ 8510-86*» нет типоразмера «" + size + "»");
}

TEST_F(CatalogueCommand, VerifiesAllSizesAndSumsUp) {
  const std::vector<std::string> lines = Printed({"catalogue", "verify"});
  ASSERT_GT(lines.size(), 2U);
  const std::vector<std::string> table{lines.begin(), lines.end() - 1};
  EXPECT_EQ(Words(table.front()),
            (std::vector<std::string>{"Типоразмер", "№", "стандарта", "Величина", "В", "каталоге",
                                      "По", "размерам", "Отклонение,", "%", "Допуск,", "%"}));
  ExpectEvenColumns(table);
  // A head, and a row a deviation.
  EXPECT_EQ(lines.back(),
            "Проверено типоразмеров: 2698, отклонений: " + std::to_string(table.size() - 1));
  for (auto row = table.begin() + 1; row != table.end(); ++row) {
    const std::vector<std::string> words = Words(*row);
    ASSERT_EQ(words.size(), 7U) << *row;
    const double stored = std::stod(words[3]);
    const double computed = std::stod(words[4]);
    EXPECT_NEAR(std::stod(words[5]), (stored - computed) / computed * 100, 0.1) << *row;
    EXPECT_GT(std::abs(std::stod(words[5])), std::stod(words[6])) << *row;
  }
}

TEST_F(CatalogueCommand, VerifiesByTheNumbersThatItShows) {
  // The table of the standard prints 15.60 cm2; two legs of 90 by 9 with their fillets have 15.558.
  EXPECT_EQ(Words(Shown("2", "L90x9").at(2)).at(7), "15.6");
  const std::vector<std::string> lines = Printed({"catalogue", "verify"});
  EXPECT_EQ(Words(lines.at(1)),
            (std::vector<std::string>{"L90x9", "2", "A", "15.6", "15.558", "0.27", "0.10"}));
}

TEST_F(CatalogueCommand, NeedsNoProjectAndLeavesNoFileInTheWorkingFolder) {
  for (const char* command : {"list", "verify"}) {
    Printed({"catalogue", command});
  }
  Printed({"catalogue", "show", "1"});
  EXPECT_TRUE(Names().empty());
}

}  // namespace

}  // namespace trelonit::test

#endif
