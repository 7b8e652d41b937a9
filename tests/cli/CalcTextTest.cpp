#ifndef _WIN32

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

namespace {

const std::string gridHead = "Проверка";

/// The force list and the utilisation table of an output, which an empty line parts.
struct PrintedLists {
  explicit PrintedLists(const std::string& out) {
    const std::vector<std::string> lines = Lines(out);
    const auto gap = std::find(lines.begin(), lines.end(), "");
    Forces.assign(lines.begin(), gap);
    Grid.assign(gap == lines.end() ? gap : gap + 1, lines.end());
  }
  std::vector<std::string> Forces;
  std::vector<std::string> Grid;
};

bool Has(const std::vector<std::string>& lines, const std::string& wanted) {
  return std::find(lines.begin(), lines.end(), wanted) != lines.end();
}

/// Whether a row of the table has this caption; blanks fill it up to the second column.
bool HasRow(const std::vector<std::string>& grid, const std::string& caption) {
  return std::any_of(grid.begin(), grid.end(), [&caption](const std::string& row) {
    return row.starts_with(caption + "  ");
  });
}

/// The force list that an example must print. Its forces have been checked by equilibrium at every
/// joint, apart from the program; those of the second scheme with its shifted lower loads.
std::vector<std::string> GoldenForces(int scheme = 1) {
  fs::path name = exampleNames.at(static_cast<std::size_t>(scheme - 1));
  name.replace_extension(".txt");
  return Lines(FileBytes(fs::path(EXAMPLES_FOLDER).parent_path() / "tests/cli/golden" / name));
}

class CalcText : public CliTest {
 protected:
  PrintedLists Calculated(const std::string& name) {
    const Outcome outcome = Run({"calc", name});
    EXPECT_EQ(outcome.Status, done) << name;
    EXPECT_EQ(outcome.Err, "") << name;
    return PrintedLists(outcome.Out);
  }
  PrintedLists CalculatedExample(int scheme) {
    Put("example.tsav", ExampleBytes(scheme));
    return Calculated("example.tsav");
  }
};

TEST_F(CalcText, PrintsBothListsForEveryExample) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const PrintedLists lists = CalculatedExample(scheme);
    ASSERT_FALSE(lists.Forces.empty());
    EXPECT_EQ(lists.Forces.front(), " Усилия в стержнях фермы даны с лева на право");
    for (const char* head : {" Верхний пояс :", " Нижний пояс :", " Раскосы :",
                             " Опорные раскосы :", " Теоретическая масса фермы:"}) {
      EXPECT_TRUE(Has(lists.Forces, head)) << scheme << head;
    }
    ASSERT_FALSE(lists.Grid.empty());
    EXPECT_TRUE(lists.Grid.front().starts_with(gridHead + "  ")) << lists.Grid.front();
    EXPECT_TRUE(lists.Grid.front().ends_with("  Коэффициент")) << lists.Grid.front();
    for (const char* head :
         {"*** Верхний пояс", "*** Нижний пояс", "*** Раскосы", "*** Опорные pаскосы"}) {
      EXPECT_TRUE(HasRow(lists.Grid, head)) << scheme << head;
    }
    EXPECT_TRUE(HasRow(lists.Grid, "Прочность верхнего пояса"));
    EXPECT_TRUE(
        HasRow(lists.Grid, "Гибкость раскосов по предельной гибкости, заданной пользователем"));
  }
}

TEST_F(CalcText, ShowsVerticalsInEverySchemeButTheThird) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const PrintedLists lists = CalculatedExample(scheme);
    EXPECT_EQ(Has(lists.Forces, " Стойки :"), scheme != 3) << scheme;
    EXPECT_EQ(HasRow(lists.Grid, "*** Cтойки"), scheme != 3) << scheme;
  }
}

TEST_F(CalcText, ShowsNoStabilityOfALowerChordThatIsAllInTension) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const PrintedLists lists = CalculatedExample(scheme);
    EXPECT_FALSE(HasRow(lists.Grid, "Устойчивость нижнего пояса в плоскости фермы")) << scheme;
    EXPECT_FALSE(HasRow(lists.Grid, "Устойчивость нижнего пояса из плоскости фермы")) << scheme;
    EXPECT_TRUE(HasRow(lists.Grid, "Устойчивость верхнего пояса в плоскости фермы")) << scheme;
  }
}

TEST_F(CalcText, AlignsTheTableInTwoColumns) {
  const PrintedLists lists = CalculatedExample(2);
  for (const std::string& row : lists.Grid) {
    // Bytes that continue a character stand for no column.
    const auto width = std::count_if(row.begin(), row.end(), [](char byte) {
      return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    });
    EXPECT_EQ(width, 85) << row;
  }
}

TEST_F(CalcText, PrintsTheForcesOfEveryExampleToTheLetter) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    EXPECT_EQ(CalculatedExample(scheme).Forces, GoldenForces(scheme)) << scheme;
  }
}

TEST_F(CalcText, LeavesTheProjectAsItIs) {
  CalculatedExample(1);
  EXPECT_EQ(Content("example.tsav"), ExampleBytes(1));
  EXPECT_EQ(Names(), std::set<std::string>{"example.tsav"});
}

TEST_F(CalcText, PrintsTheSameEveryTime) {
  EXPECT_EQ(CalculatedExample(4).Forces, CalculatedExample(4).Forces);
}

TEST_F(CalcText, SaysNothingOfTheDeflectionWhereItIsNotAskedFor) {
  Put("a.tsav", WithLine(ExampleBytes(1), 16, "0"));
  std::vector<std::string> expected = GoldenForces();
  expected.resize(expected.size() - 3);
  EXPECT_EQ(Calculated("a.tsav").Forces, expected);
}

TEST_F(CalcText, TellsADeflectionBeyondItsLimit) {
  Put("a.tsav", WithLine(ExampleBytes(1), 17, "1 / 2500"));
  std::vector<std::string> expected = GoldenForces();
  expected.resize(expected.size() - 2);
  expected.insert(expected.end(),
                  {"Не выполнено условие жесткости !!! ", "Максимальный прогиб фермы : 0.03512 м ",
                   "Допустимый прогиб фермы : 0.00960 м "});
  EXPECT_EQ(Calculated("a.tsav").Forces, expected);
}

TEST_F(CalcText, ReadsNumbersWithACommaLikeThoseWithAPoint) {
  std::string project = ExampleBytes(1);
  for (int line : {6, 15, 50}) {
    std::string value = Lines(project)[static_cast<std::size_t>(line - 1)];
    value = value.substr(1, value.size() - 3);
    std::replace(value.begin(), value.end(), '.', ',');
    ASSERT_NE(value.find(','), std::string::npos);
    project = WithLine(project, line, value);
  }
  Put("comma.tsav", project);
  EXPECT_EQ(Calculated("comma.tsav").Forces, GoldenForces());
}

/// The first example as a beam: 24 m in 8 panels of 3 m, 2.8 m high, one load per metre for each
/// chord. Chord forces are moments over the height, diagonals carry the shear of their panel, and
/// no joint is walked. Everything is symmetric, so the left half says it all.
class ParallelChords {
 public:
  static constexpr int panels = 8;
  static constexpr double panel = 3;
  static constexpr double height = 2.8;
  static constexpr double span = panels * panel;

  /// Tonnes at the joints of each chord, one a column.
  ParallelChords(std::vector<double> upper, std::vector<double> lower)
      : upper_(std::move(upper)), lower_(std::move(lower)) {
    for (int column = 0; column <= panels; ++column) {
      reaction_ += Load(column) * (span - column * panel) / span;
    }
  }

  double Reaction() const { return reaction_; }
  double Upper(int bar) const { return -Moment(IsLeft(bar) ? bar + 1 : bar) / height; }
  double Lower(int bar) const { return Moment(IsLeft(bar) ? bar : bar + 1) / height; }
  double Diagonal(int bar) const {
    return (IsLeft(bar) ? 1 : -1) * Shear(bar) * std::hypot(panel, height) / height;
  }
  /// What the upper joint of the column and the diagonal at it press down.
  double Vertical(int column) const {
    const double pull = column < panels / 2   ? Shear(column)
                        : column > panels / 2 ? -Shear(column - 1)
                                              : 0;
    return -at(upper_, column) - pull;
  }

 private:
  static bool IsLeft(int bar) { return bar < panels / 2; }
  static double at(const std::vector<double>& loads, int column) {
    return loads.at(static_cast<std::size_t>(column));
  }
  double Load(int column) const { return at(upper_, column) + at(lower_, column); }
  double Shear(int bar) const {
    double shear = reaction_;
    for (int column = 0; column <= bar; ++column) {
      shear -= Load(column);
    }
    return shear;
  }
  double Moment(int column) const {
    double moment = reaction_ * column * panel;
    for (int before = 0; before < column; ++before) {
      moment -= Load(before) * (column - before) * panel;
    }
    return moment;
  }

  std::vector<double> upper_;
  std::vector<double> lower_;
  double reaction_ = 0;
};

/// Joint loads of a load per metre on equal panels.
std::vector<double> JointLoads(double perMetre) {
  std::vector<double> loads(ParallelChords::panels + 1, perMetre * ParallelChords::panel);
  loads.front() /= 2;
  loads.back() /= 2;
  return loads;
}

/// Areas of the five groups, cm2: twice the published area of the angle.
constexpr double upperArea = 2 * 34.87;     // L200x125x11
constexpr double lowerArea = 2 * 10.85;     // L80x7
constexpr double diagonalArea = 2 * 12.28;  // L90x7
constexpr double verticalArea = lowerArea;
constexpr double elasticity = 210000;  // MPa

double Mass() {
  const double diagonals = ParallelChords::panels * std::hypot(3, 2.8);
  const double verticals = (ParallelChords::panels + 1) * ParallelChords::height;
  return 7.85e-4 * (ParallelChords::span * (upperArea + lowerArea) + diagonals * diagonalArea +
                    verticals * verticalArea);
}

double OwnWeightPerMetre() {
  return std::round(Mass() / (2 * ParallelChords::span) * 1e4) / 1e4;
}

ParallelChords LoadedTruss() {
  return {JointLoads(1.68 + OwnWeightPerMetre()), JointLoads(OwnWeightPerMetre())};
}

/// Unit-load method at the upper joint of the middle; a tonne is 9810 N.
double Deflection(const ParallelChords& loaded) {
  std::vector<double> unit(ParallelChords::panels + 1, 0);
  unit[ParallelChords::panels / 2] = 1;
  const ParallelChords virtualTruss(unit, std::vector<double>(unit.size(), 0));
  double sum = 0;
  for (int bar = 0; bar < ParallelChords::panels; ++bar) {
    sum += loaded.Upper(bar) * virtualTruss.Upper(bar) * 3 / upperArea;
    sum += loaded.Lower(bar) * virtualTruss.Lower(bar) * 3 / lowerArea;
    sum += loaded.Diagonal(bar) * virtualTruss.Diagonal(bar) * std::hypot(3, 2.8) / diagonalArea;
  }
  for (int column = 0; column <= ParallelChords::panels; ++column) {
    sum += loaded.Vertical(column) * virtualTruss.Vertical(column) * 2.8 / verticalArea;
  }
  return 98.1 * sum / elasticity;
}

/// The number of a line: the last word but one.
double NumberOf(const std::string& line) {
  const std::vector<std::string> words = Words(line);
  return words.size() < 2 ? NAN : std::stod(words[words.size() - 2]);
}

/// A number with 4 decimals says no more than this.
constexpr double halfDigit = 0.5001e-4;

class GoldenList : public testing::Test {
 protected:
  /// The numbers below a heading, up to the blank line after them.
  std::vector<double> Below(const std::string& heading) {
    auto line = std::find(golden_.begin(), golden_.end(), heading);
    EXPECT_NE(line, golden_.end()) << heading;
    std::vector<double> numbers;
    for (; line != golden_.end() && ++line != golden_.end() && *line != " ";) {
      numbers.push_back(NumberOf(*line));
    }
    return numbers;
  }

  template <class Force>
  static void ExpectBars(const std::vector<double>& printed, int first, int count,
                         Force&& expected) {
    ASSERT_EQ(printed.size(), static_cast<std::size_t>(count));
    for (int bar = 0; bar < count; ++bar) {
      EXPECT_NEAR(printed[static_cast<std::size_t>(bar)], expected(first + bar), halfDigit) << bar;
    }
  }

  const ParallelChords truss_ = LoadedTruss();

 private:
  const std::vector<std::string> golden_ = GoldenForces();
};

TEST_F(GoldenList, HoldsTheMassOfThePublishedAreas) {
  const std::vector<double> mass = Below(" Теоретическая масса фермы:");
  ASSERT_EQ(mass.size(), 1U);
  EXPECT_NEAR(mass[0], Mass(), halfDigit);
  EXPECT_DOUBLE_EQ(OwnWeightPerMetre(), 0.058);
}

TEST_F(GoldenList, HoldsTheForcesOfTheTrussAsABeam) {
  constexpr int n = ParallelChords::panels;
  const auto diagonal = [this](int bar) { return truss_.Diagonal(bar); };
  ExpectBars(Below(" Верхний пояс :"), 0, n, [this](int bar) { return truss_.Upper(bar); });
  ExpectBars(Below(" Нижний пояс :"), 0, n, [this](int bar) { return truss_.Lower(bar); });
  ExpectBars(Below(" Раскосы :"), 1, n - 2, diagonal);
  ExpectBars(Below(" Опорные раскосы :"), 0, 2,
             [&diagonal](int bar) { return diagonal(bar * (n - 1)); });
  ExpectBars(Below(" Стойки :"), 0, n + 1, [this](int bar) { return truss_.Vertical(bar); });
}

TEST_F(GoldenList, HoldsTheReactionsWithAndWithoutHalfTheMass) {
  // (1.68 + 2 * 0.058) t/m on 24 m, half to each support.
  EXPECT_NEAR(truss_.Reaction(), 21.552, 1e-12);
  ExpectBars(Below(" Реакции опор без учета собственной массы фермы:"), 0, 2,
             [this](int) { return truss_.Reaction(); });
  ExpectBars(Below(" Реакции опор c учетом собственной массы фермы:"), 0, 2,
             [this](int) { return truss_.Reaction() + Mass() / 2; });
}

TEST_F(GoldenList, HoldsTheDeflectionOfTheMiddleJoint) {
  std::ostringstream expected;
  expected << "Максимальный прогиб : " << std::fixed << std::setprecision(5) << Deflection(truss_)
           << " м ";
  EXPECT_TRUE(Has(GoldenForces(), expected.str())) << expected.str();
  // 24 m / 250
  EXPECT_TRUE(Has(GoldenForces(), "Допустимый прогиб фермы : 0.09600 м "));
}

}  // namespace

}  // namespace trelonit::test

#endif
