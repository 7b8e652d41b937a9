#ifndef _WIN32

#include <algorithm>
#include <string>
#include <vector>

#include "tests/cli/ProgramFiles.h"

namespace trelonit::test {

namespace {

using Texts = std::vector<std::string>;

/// A data file, checked by its name.
class VerifyFile : public ProgramFiles {
 protected:
  Outcome Verified(const std::string& bytes) {
    Put("data.dat", bytes);
    return Run({"catalogue", "verify", "data.dat"});
  }

  /// The lines of a check that must come to its end.
  Texts Printed(const std::string& bytes) {
    const Outcome outcome = Verified(bytes);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    EXPECT_TRUE(outcome.Out.ends_with("\n"));
    Texts lines = Lines(outcome.Out);
    EXPECT_FALSE(lines.empty());
    return lines;
  }

  static std::string Summary(std::size_t records, std::size_t deviations) {
    return "Проверено типоразмеров: " + std::to_string(records) +
           ", отклонений: " + std::to_string(deviations);
  }

  /// The bytes of the data file that the program unpacks.
  std::string Shipped() {
    Unpack();
    return FileBytes(ProgramFolder() / dataName);
  }

  void ExpectNotRead(const std::string& name, const std::string& reason) {
    const Outcome outcome = Run({"catalogue", "verify", name});
    ExpectFailure(outcome, "trelonit-cli: файл «" + name + "» не прочитан: " + reason + "\n");
  }
};

TEST_F(VerifyFile, FindsInTheShippedFileWhatItFindsInTheCatalogue) {
  const std::string shipped = Shipped();
  const Outcome own = Run({"catalogue", "verify"});
  const Outcome outcome = Verified(shipped);
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Err, "");
  EXPECT_EQ(outcome.Out, own.Out);
  EXPECT_TRUE(Lines(outcome.Out).back().starts_with("Проверено типоразмеров: 2698, "));
}

TEST_F(VerifyFile, LeavesTheFileAndTheCatalogueAsTheyAre) {
  const std::string shipped = Shipped();
  const std::string part = shipped.substr(0, 20 * recordSize);
  Verified(part);
  EXPECT_EQ(Content("data.dat"), part);
  EXPECT_EQ(FileBytes(ProgramFolder() / dataName), shipped);
  EXPECT_EQ(Names(), std::set<std::string>{"data.dat"});
}

TEST_F(VerifyFile, MissesNoStandardInAShortenedFile) {
  const std::string shipped = Shipped();
  // The first standard, and a part of the second.
  EXPECT_EQ(Printed(shipped.substr(0, 62 * recordSize)).back(), Summary(62, 0));
  EXPECT_EQ(Printed(shipped.substr(0, 70 * recordSize)).back(), Summary(70, 0));
  EXPECT_EQ(Printed(shipped.substr(0, recordSize)), Texts{Summary(1, 0)});
}

TEST_F(VerifyFile, CountsALastRecordThatIsCutFromItsHalfOn) {
  const std::string shipped = Shipped();
  EXPECT_EQ(Printed(shipped.substr(0, 10 * recordSize + recordSize / 2 - 1)),
            Texts{Summary(10, 0)});
  const Texts lines = Printed(shipped.substr(0, 10 * recordSize + recordSize / 2 + 1));
  // What the record lacks is 0 and so deviates.
  EXPECT_EQ(lines.back(), Summary(11, lines.size() - 2));
  EXPECT_GT(lines.size(), 2U);
}

TEST_F(VerifyFile, HasNothingToSayOfAnEmptyFile) {
  EXPECT_EQ(Printed(""), Texts{Summary(0, 0)});
}

TEST_F(VerifyFile, FindsAWrongFigure) {
  std::string bytes = Shipped().substr(0, 10 * recordSize);
  // The numbers stand behind the name of 15 and the standard of 50 characters; the seventh, the
  // area, of the first record becomes that of another.
  constexpr std::size_t area = 65 + 6 * 8;
  bytes.replace(area, 8, bytes.substr(9 * recordSize + area, 8));
  const Texts lines = Printed(bytes);
  ASSERT_EQ(lines.size(), 3U);
  const Texts words = Words(lines[1]);
  EXPECT_EQ(words.at(0), "L25x16x3");
  EXPECT_EQ(words.at(1), "1");
  EXPECT_EQ(words.at(2), "A");
  EXPECT_EQ(lines.back(), Summary(10, 1));
}

TEST_F(VerifyFile, FindsRecordsByTheirStandardInAnyOrder) {
  const std::string shipped = Shipped();
  std::string turned;
  for (std::size_t record = 100; record-- > 0;) {
    turned += shipped.substr(record * recordSize, recordSize);
  }
  const Texts there = Printed(shipped.substr(0, 100 * recordSize));
  const Texts back = Printed(turned);
  EXPECT_EQ(back.back(), there.back());
  EXPECT_EQ(back.size(), there.size());
}

TEST_F(VerifyFile, TellsRecordsOfAStandardThatTheCatalogueHasNot) {
  std::string bytes = Shipped().substr(0, 3 * recordSize);
  // The first letter of the standard's name, behind the designation.
  bytes[recordSize + 15] = 'X';
  const Texts lines = Printed(bytes);
  ASSERT_EQ(lines.size(), 3U);
  const Texts words = Words(lines[1]);
  EXPECT_EQ(words.at(1), "23");
  EXPECT_EQ(words.at(2), "standard");
  EXPECT_EQ(lines.back(), Summary(3, 1));
}

TEST_F(VerifyFile, FindsNothingGoodInAForeignFile) {
  for (const std::string& bytes :
       {std::string(5000, '\xFF'), std::string(5000, '\0'), ExampleBytes(1) + ExampleBytes(2),
        FileBytes(TRELONIT_CLI).substr(0, 100 * recordSize)}) {
    const Outcome outcome = Verified(bytes);
    EXPECT_EQ(outcome.Status, done);
    EXPECT_EQ(outcome.Err, "");
    const std::size_t records = (bytes.size() + recordSize / 2) / recordSize;
    EXPECT_TRUE(outcome.Out.ends_with(Summary(records, records) + "\n"))
        << outcome.Out.substr(outcome.Out.size() - std::min<std::size_t>(outcome.Out.size(), 200));
  }
}

TEST_F(VerifyFile, WritesALineForEachRecordOfAForeignFile) {
  // Texts of many short lines, so that designations have line ends in them.
  std::string bytes;
  while (bytes.size() < 20 * recordSize) {
    bytes += "line\n";
  }
  const Texts lines = Printed(bytes.substr(0, 20 * recordSize));
  EXPECT_EQ(lines.size(), 1U + 20U + 1U);
  EXPECT_EQ(lines.back(), Summary(20, 20));
}

TEST_F(VerifyFile, SendsNoControlCharactersOfAForeignFileToTheTerminal) {
  const Outcome outcome = Verified(std::string(recordSize, '\x1B') + std::string(recordSize, '\a'));
  EXPECT_EQ(outcome.Status, done);
  EXPECT_EQ(outcome.Out.find_first_of("\x1B\a"), std::string::npos);
}

TEST_F(VerifyFile, TellsAFileThatIsNotThere) {
  ExpectNotRead("missing.dat", "File not found");
  ExpectNotRead("no/such/missing.dat", "Path not found");
  EXPECT_TRUE(Names().empty());
}

TEST_F(VerifyFile, TellsAFolder) {
  fs::create_directory(WorkFolder() / "folder");
  ExpectNotRead("folder", "Path/File access error");
}

TEST_F(VerifyFile, TellsAFileThatMayNotBeRead) {
  Unpack();
  Put("secret.dat", "secret");
  fs::permissions(WorkFolder() / "secret.dat", fs::perms(0000));
  Launch launch = Command({"catalogue", "verify", "secret.dat"});
  launch.PlainUser = true;
  ExpectFailure(RunProgram(launch),
                "trelonit-cli: файл «secret.dat» не прочитан: Permission denied\n");
}

TEST_F(VerifyFile, TellsAFileWithMoreRecordsThanACatalogueHolds) {
  // Without blocks of its own on most file systems.
  Put("huge.dat", "");
  fs::resize_file(WorkFolder() / "huge.dat", std::uintmax_t{1} << 30U);
  Launch launch = Command({"catalogue", "verify", "huge.dat"});
  const Outcome outcome = RunProgram(launch);
  ExpectFailure(outcome,
                "trelonit-cli: файл «huge.dat» не прочитан: записей больше 32767, столько каталог "
                "не вмещает\n");
  EXPECT_LT(outcome.PeakMemory, MemoryLimit(100));
}

TEST_F(VerifyFile, TakesAsManyRecordsAsACatalogueHolds) {
  Put("full.dat", "");
  fs::resize_file(WorkFolder() / "full.dat", 32767 * recordSize);
  EXPECT_TRUE(Run({"catalogue", "verify", "full.dat"}).Out.ends_with(Summary(32767, 32767) + "\n"));
  fs::resize_file(WorkFolder() / "full.dat", 32768 * recordSize);
  EXPECT_EQ(Run({"catalogue", "verify", "full.dat"}).Status, failed);
}

TEST_F(VerifyFile, NeedsTheCatalogueForItsStandards) {
  const std::string shipped = Shipped();
  Cut(ProgramFolder() / indexName, 0);
  const Outcome outcome = Verified(shipped);
  EXPECT_EQ(outcome.Status, failed);
  EXPECT_EQ(outcome.Out, "");
  EXPECT_TRUE(outcome.Err.starts_with("Form_Load:  Err # ")) << outcome.Err;
}

TEST_F(VerifyFile, TakesAnEmptyNameForTheCatalogueItself) {
  EXPECT_EQ(Run({"catalogue", "verify", ""}).Out, Run({"catalogue", "verify"}).Out);
}

}  // namespace

}  // namespace trelonit::test

#endif
