#ifndef _WIN32

#include <chrono>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "tests/cli/ProgramFiles.h"

namespace trelonit::test {

namespace {

const std::string outOfRange = ErrorLine("Form_Load", 9, "Subscript out of range");
const std::string emptySection =
    "Трелонит v 1.0.0 (alpha): Не правильно расчитана масса фермы !\n" +
    ErrorLine("Трелонит v 1.0.0 (alpha)", 11, "Division by zero");

void Overwrite(const fs::path& file, const std::string& bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream << bytes;
  ASSERT_TRUE(stream.flush()) << file;
}

using CatalogueFiles = ProgramFiles;

/// The last line of the health check of what the program reads.
std::string Summary(const Outcome& verify) {
  EXPECT_EQ(verify.Status, done);
  EXPECT_EQ(verify.Err, "");
  const std::vector<std::string> lines = Lines(verify.Out);
  return lines.empty() ? "" : lines.back();
}

TEST_F(CatalogueFiles, AppearBesideTheProgramAtTheFirstStart) {
  Unpack();
  ExpectWholeFiles(ProgramFolder(), {ProgramName()});
  EXPECT_TRUE(Names(DataFolder()).empty());
  EXPECT_TRUE(Names().empty());
}

TEST_F(CatalogueFiles, AppearWhateverCommandComesFirst) {
  Put("a.tsav", ExampleBytes(1));
  for (const std::vector<std::string>& command : {std::vector<std::string>{"new", "-o", "b.tsav"},
                                                  {"calc", "a.tsav"},
                                                  {"catalogue", "show", "1"},
                                                  {"catalogue", "verify"}}) {
    EXPECT_EQ(Run(command).Status, done);
    ExpectWholeFiles(ProgramFolder(), {ProgramName()});
    RemoveBoth();
  }
}

TEST_F(CatalogueFiles, AreNotTouchedAtTheNextStart) {
  Unpack();
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1000);
  for (const std::string& name : bothNames) {
    fs::last_write_time(ProgramFolder() / name, longAgo);
  }
  const auto before = fs::last_write_time(ProgramFolder() / dataName);
  Unpack();
  EXPECT_EQ(CalculatedExample(1).Status, done);
  for (const std::string& name : bothNames) {
    EXPECT_EQ(fs::last_write_time(ProgramFolder() / name), before) << name;
  }
}

TEST_F(CatalogueFiles, KeepTheUsersEdits) {
  Unpack();
  std::string data = FileBytes(ProgramFolder() / dataName);
  data.replace(0, 8, "MINE   0");
  Overwrite(ProgramFolder() / dataName, data);
  const Outcome outcome = Run({"catalogue", "show", "1", "MINE   0"});
  EXPECT_EQ(outcome.Status, done) << outcome.Err;
  EXPECT_TRUE(Lines(outcome.Out).at(2).starts_with("MINE   0  16  25  3  3")) << outcome.Out;
  EXPECT_EQ(FileBytes(ProgramFolder() / dataName), data);
}

TEST_F(CatalogueFiles, AreNeverOverwrittenHoweverDamaged) {
  Unpack();
  for (const std::string& bytes : {std::string(), std::string("mine"), std::string(5000, '\xFF')}) {
    for (const std::string& name : bothNames) {
      Overwrite(ProgramFolder() / name, bytes);
    }
    Put("a.tsav", ExampleBytes(1));
    for (const std::vector<std::string>& command : {std::vector<std::string>{"calc", "a.tsav"},
                                                    {"new", "-o", "b.tsav"},
                                                    {"catalogue", "list"},
                                                    {"catalogue", "show", "1"},
                                                    {"catalogue", "verify"}}) {
      const Outcome outcome = Run(command);
      EXPECT_EQ(outcome.Status, failed);
      EXPECT_EQ(outcome.Out, "");
      EXPECT_TRUE(outcome.Err.starts_with("Form_Load:  Err # ")) << outcome.Err;
    }
    for (const std::string& name : bothNames) {
      EXPECT_EQ(FileBytes(ProgramFolder() / name), bytes) << name;
    }
    EXPECT_EQ(Names(), std::set<std::string>{"a.tsav"});
  }
}

TEST_F(CatalogueFiles, AreUnpackedAnewOneByOneWhereTheyAreMissing) {
  Unpack();
  CutIndex(10);
  fs::remove(ProgramFolder() / dataName);
  EXPECT_EQ(StandardsListed(), 10U);
  EXPECT_EQ(fs::file_size(ProgramFolder() / dataName), dataSize);
  EXPECT_EQ(fs::file_size(ProgramFolder() / indexName), 10 * rowSize);

  CutData(1000);
  fs::remove(ProgramFolder() / indexName);
  EXPECT_EQ(StandardsListed(), 22U);
  EXPECT_EQ(fs::file_size(ProgramFolder() / dataName), 1000 * recordSize);
  EXPECT_EQ(fs::file_size(ProgramFolder() / indexName), indexSize);
}

TEST_F(CatalogueFiles, CutToAThousandRecordsKeepTheSlotsOfAllStandards) {
  const std::string whole = Run({"catalogue", "list"}).Out;
  CutData(1000);
  EXPECT_EQ(Run({"catalogue", "list"}).Out, whole);

  // Records 771 to 1574 are the fourteenth standard: 230 of its 804 are there.
  const Outcome outcome = Run({"catalogue", "show", "14"});
  EXPECT_EQ(outcome.Status, done);
  const std::vector<std::string> lines = Lines(outcome.Out);
  ASSERT_EQ(lines.size(), 2U + 804U);
  EXPECT_EQ(Words(lines[2]).front(), "Тр10x1");
  EXPECT_EQ(Words(lines[2 + 229]).size(), 15U);
  const std::vector<std::string> zeros(14, "0");
  for (std::size_t line = 2 + 230; line < lines.size(); ++line) {
    EXPECT_EQ(Words(lines[line]), zeros) << line;
  }
  // All that is missing is found missing: 2698 records less 1000, and what was found before among
  // the first thousand.
  EXPECT_EQ(Summary(Run({"catalogue", "verify"})),
            "Проверено типоразмеров: 2698, отклонений: 1729");
}

TEST_F(CatalogueFiles, CutToAThousandRecordsCalculateWhatTheyStillHold) {
  std::vector<std::string> whole;
  for (int scheme = 1; scheme <= 4; ++scheme) {
    const Outcome outcome = CalculatedExample(scheme);
    EXPECT_EQ(outcome.Status, done);
    whole.push_back(outcome.Out);
  }
  CutData(1000);
  for (const int scheme : {1, 3}) {
    EXPECT_EQ(CalculatedExample(scheme).Out, whole.at(static_cast<std::size_t>(scheme - 1)));
  }
  // The others are of tubes that are cut off; the check runs twice because of the own weight.
  for (const int scheme : {2, 4}) {
    ExpectFailure(CalculatedExample(scheme), emptySection + emptySection);
  }
}

TEST_F(CatalogueFiles, CutToAThousandRecordsHaveNoSizeBehindThem) {
  Unpack();
  CutData(1000);
  ExpectFailure(Run({"catalogue", "show", "15", "Тр40x2"}),
                "trelonit-cli: в стандарте «гнуто-сварные квадратные профили ГОСТ 30245-2003» нет "
                "типоразмера «Тр40x2»\n");
}

TEST_F(CatalogueFiles, WithoutAnyRecordStillStartTheProgram) {
  ASSERT_EQ(Run({"new", "-o", "a.tsav"}).Status, done);
  CutData(0);
  EXPECT_EQ(StandardsListed(), 22U);
  EXPECT_EQ(Summary(Run({"catalogue", "verify"})),
            "Проверено типоразмеров: 2698, отклонений: 2698");
  // A project holds places in the catalogue, not its records.
  const Outcome outcome = Run({"new", "-o", "b.tsav"});
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  EXPECT_EQ(Content("b.tsav"), Content("a.tsav"));
  ExpectFailure(CalculatedExample(1), emptySection + emptySection);
}

TEST_F(CatalogueFiles, WithACutIndexHoldItsStandardsOnly) {
  Unpack();
  CutIndex(10);
  EXPECT_EQ(StandardsListed(), 10U);
  // The tenth standard ends with record 504; of the reviewed deviations three lie before it.
  EXPECT_EQ(Summary(Run({"catalogue", "verify"})), "Проверено типоразмеров: 504, отклонений: 3");
  EXPECT_EQ(Run({"catalogue", "show", "11"}).Status, failed);
  EXPECT_EQ(CalculatedExample(1).Status, done);
  const Outcome tubes = CalculatedExample(2);
  EXPECT_EQ(tubes.Status, failed);
  EXPECT_EQ(tubes.Out, "");
  EXPECT_TRUE(
      tubes.Err.starts_with(ErrorLine("optElementSection_Click", 9, "Subscript out of range")))
      << tubes.Err;
}

TEST_F(CatalogueFiles, WithACutIndexStartAsLongAsTheListOfAnglesIsThere) {
  Unpack();
  CutIndex(2);
  EXPECT_EQ(StandardsListed(), 2U);
  for (const std::size_t rows : {std::size_t{1}, std::size_t{0}}) {
    CutIndex(rows);
    ExpectFailure(Run({"catalogue", "list"}), outOfRange);
    ExpectFailure(CalculatedExample(1), outOfRange);
    ExpectFailure(Run({"new", "-o", "new.tsav"}), outOfRange);
    EXPECT_EQ(Names(), std::set<std::string>{"example.tsav"});
  }
}

TEST_F(CatalogueFiles, ThatAreFoldersAreTold) {
  for (const std::string& name : bothNames) {
    fs::create_directory(ProgramFolder() / name);
  }
  ExpectFailure(Run({"catalogue", "list"}), cannotWrite + cannotWrite + badFileName);
}

TEST_F(CatalogueFiles, AreWholeOrMissingAfterAFullDisk) {
  Launch launch = Command({"catalogue", "list"});
  // Enough for the index, not for the data.
  launch.LargestFile = 100000;
  const Outcome outcome = RunProgram(launch);
  ExpectFailure(outcome, cannotWrite + badFileName);
  EXPECT_EQ(Names(ProgramFolder()), (std::set<std::string>{ProgramName(), indexName}));
  EXPECT_EQ(StandardsListed(), 22U);
  ExpectWholeFiles(ProgramFolder(), {ProgramName()});
}

}  // namespace

}  // namespace trelonit::test

#endif
