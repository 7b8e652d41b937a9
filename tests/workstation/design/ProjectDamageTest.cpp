#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <rapidcheck/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Instrumented.h"
#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

class DamagedProjectFile : public ProjectReading {
 protected:
  std::vector<std::string> Intact() { return Described(Read(StartUpValues())); }

  /// The first lines of the start-up project.
  static ProjectValues Head(std::size_t count) {
    ProjectValues values = StartUpValues();
    values.resize(count);
    return values;
  }
};

/// What is left when nothing could be read: one load of 0 in every array, because an empty text is
/// one number.
DesignInputs EmptyRecord() {
  DesignInputs record;
  for (BoundedArray<double> LoadArrays::*array :
       {&LoadArrays::UpPForce, &LoadArrays::UpDistForce, &LoadArrays::DwnPForce,
        &LoadArrays::DwnDistForce}) {
    record.Loads.*array = BoundedArray<double>(0, 0);
  }
  return record;
}

TEST_F(DamagedProjectFile, OfNoBytesGivesBothMessagesAndNothingElse) {
  EXPECT_EQ(Described(Read(std::string())), Described(EmptyRecord()));
  EXPECT_EQ(desk.TakeMessages(), (Messages{LineCountMessage(), HeaderMessage()}));
}

TEST_F(DamagedProjectFile, WithFiftyTwoLinesLacksOnlyTheLineThatNobodyReads) {
  const std::vector<std::string> intact = Intact();
  EXPECT_EQ(Described(Read(Head(52))), intact);
  EXPECT_EQ(desk.TakeMessages(), Messages{LineCountMessage()});
}

TEST_F(DamagedProjectFile, WithMoreLinesIsTakenWithoutAWord) {
  const std::vector<std::string> intact = Intact();
  ProjectValues values = StartUpValues();
  values.push_back("more");
  EXPECT_EQ(Described(Read(values)), intact);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(DamagedProjectFile, WithAnotherFirstLineIsReadAllTheSame) {
  const std::vector<std::string> intact = Intact();
  for (const char* first : {"", "trelo calculation save file", "Trelo calculation save file ",
                            "Trelo calculation save", "1"}) {
    EXPECT_EQ(Described(Read(With(StartUpValues(), lineHeader, first))), intact) << first;
    EXPECT_EQ(desk.TakeMessages(), Messages{HeaderMessage()}) << first;
  }
}

TEST_F(DamagedProjectFile, WithBothFaultsTellsTheLineCountFirst) {
  const std::vector<std::string> intact = Intact();
  EXPECT_EQ(Described(Read(With(Head(52), lineHeader, "x"))), intact);
  EXPECT_EQ(desk.TakeMessages(), (Messages{LineCountMessage(), HeaderMessage()}));
}

TEST_F(DamagedProjectFile, WithNothingButItsFirstLineRepeatsThatWhereATextIsWanted) {
  DesignInputs expected = EmptyRecord();
  expected.SteelName = "Trelo calculation save file";
  expected.LenLim = "Trelo calculation save file";
  EXPECT_EQ(Described(Read(Head(1))), Described(expected));
  EXPECT_EQ(desk.TakeMessages(), Messages{LineCountMessage()});
}

TEST_F(DamagedProjectFile, CutShortRepeatsTheLastTextThatCouldBeRead) {
  // Cut after line 10, whose value is 240.
  const DesignInputs record = Read(Head(lineRy));
  EXPECT_EQ(record.SteelName, StartUpValues().at(lineSteelName - 1));
  EXPECT_EQ(record.Ry, 240);
  EXPECT_EQ(record.Density, 240);
  EXPECT_EQ(record.UsloviyaRabot, 240);
  EXPECT_EQ(record.ProgibOn, 240);
  EXPECT_EQ(record.LenLim, "240");
  EXPECT_EQ(record.ActiveGroup, 240);
  const SectionRec section{
      .TypeIdx = 240, .SizeIdx = 240, .Gdist = 240, .Paired = true, .Layout = 240};
  for (const SectionRec& read : record.ElementSection) {
    EXPECT_EQ(read, section) << Described(read);
  }
  EXPECT_EQ(record.PForceTool, 240);
  EXPECT_EQ(Values(record.Loads.UpPForce), std::vector<double>{240});
  EXPECT_EQ(Values(record.Loads.DwnDistForce), std::vector<double>{240});
  EXPECT_EQ(desk.TakeMessages(), Messages{LineCountMessage()});
}

TEST_F(DamagedProjectFile, OfEveryLengthTellsTheLineCountAndKeepsWhatItHas) {
  const std::vector<std::string> intact = Intact();
  for (std::size_t count = 1; count < 53; ++count) {
    const std::vector<std::string> read = Described(Read(Head(count)));
    EXPECT_EQ(desk.TakeMessages(), Messages{LineCountMessage()}) << count;
    // The fields before the sections stand in the order of the lines.
    for (std::size_t line = 2; line <= std::min<std::size_t>(count, lineActiveGroup); ++line) {
      EXPECT_EQ(read.at(line - 2), intact.at(line - 2)) << count;
    }
  }
}

TEST_F(DamagedProjectFile, CountsALastLineWithoutAnEnd) {
  std::string bytes = ProjectBytes(StartUpValues());
  bytes.resize(bytes.size() - 2);
  Read(bytes);
  EXPECT_EQ(desk.TakeMessages(), Messages());
  bytes.resize(bytes.rfind('\n') + 1);
  Read(bytes);
  EXPECT_EQ(desk.TakeMessages(), Messages{LineCountMessage()});
}

TEST_F(DamagedProjectFile, InUtf8LosesItsCyrillicLettersOnly) {
  std::string bytes;
  for (const std::string& value : StartUpValues()) {
    bytes += '"' + value + "\"\r\n";
  }
  std::vector<std::string> expected = Intact();
  expected.at(lineSteelName - 2) =
      "SteelName [" + DecodeCodePage1251(StartUpValues().at(lineSteelName - 1)) + "]";
  EXPECT_EQ(Described(Read(bytes)), expected);
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(Described(Read("\xEF\xBB\xBF" + bytes)), expected);
}

TEST_F(DamagedProjectFile, InUtf16IsNoProject) {
  std::string bytes = "\xFF\xFE";
  for (const char byte : ProjectBytes(With(StartUpValues(), lineSteelName, "steel"))) {
    bytes += byte;
    bytes += '\0';
  }
  const DesignInputs record = Read(bytes);
  EXPECT_EQ(desk.TakeMessages(), Messages{HeaderMessage()});
  EXPECT_EQ(record.TreloType, 0);
  EXPECT_EQ(record.LengthF, 0);
  EXPECT_EQ(record.ElementSection[sectionUpPoyas], SectionRec());
}

RC_GTEST_FIXTURE_PROP(DamagedProjectFile, OfAnyBytesNeverStopsTheReading, ()) {
  // Line ends and quotes often enough to make lines.
  const auto byte =
      rc::gen::weightedOneOf<char>({{4, rc::gen::arbitrary<char>()},
                                    {2, rc::gen::element('\n', '\r', '"', ';', '0', '1', '.')}});
  const auto text = *rc::gen::scale(8.0, rc::gen::container<std::string>(byte));
  const bool keepsHeader = *rc::gen::arbitrary<bool>();
  const std::string header = "\"Trelo calculation save file\"\r\n";
  const std::string bytes = keepsHeader ? header + text : text;
  Read(bytes);
  auto lines = std::count(bytes.begin(), bytes.end(), '\n');
  if (!bytes.empty() && bytes.back() != '\n') {
    ++lines;
  }
  Messages expected;
  if (lines < 53) {
    expected.push_back(LineCountMessage());
  }
  if (!keepsHeader) {
    expected.push_back(HeaderMessage());
  }
  RC_ASSERT(desk.TakeMessages() == expected);
}

RC_GTEST_FIXTURE_PROP(DamagedProjectFile, WithAnyLineSpoiltKeepsTheOtherFields, ()) {
  const std::vector<std::string> intact = Intact();
  const auto line = *rc::gen::inRange<std::size_t>(lineTreloType, lineActiveGroup + 1);
  const auto byte = rc::gen::suchThat(rc::gen::arbitrary<char>(),
                                      [](char one) { return one != '\n' && one != '\r'; });
  const auto spoilt = *rc::gen::container<std::string>(byte);
  std::string bytes;
  const ProjectValues values = StartUpValues();
  for (std::size_t number = 1; number <= values.size(); ++number) {
    bytes += '"' + (number == line ? spoilt : EncodeCodePage1251(values.at(number - 1))) + "\"\r\n";
  }
  std::vector<std::string> read = Described(Read(bytes));
  RC_ASSERT(desk.TakeMessages() == Messages());
  read.at(line - 2) = intact.at(line - 2);
  RC_ASSERT(read == intact);
}

TEST_F(DamagedProjectFile, OfNoiseNeverStopsTheReading) {
  for (unsigned seed = 1; seed <= 5; ++seed) {
    std::mt19937 generator(seed);
    std::string bytes(200000, '\0');
    std::generate(bytes.begin(), bytes.end(),
                  [&] { return static_cast<char>(generator() & 0xFFU); });
    Read(bytes);
    EXPECT_EQ(desk.TakeMessages(), Messages{HeaderMessage()}) << seed;
  }
}

/// Seconds that the reading of these bytes takes. The limits below are far above what a slow
/// instrumented build needs, and far below what anything but one pass would take.
class HugeProjectFile : public DamagedProjectFile {
 protected:
  DesignInputs TimedRead(const std::string& bytes) {
    const auto start = std::chrono::steady_clock::now();
    DesignInputs record = Read(bytes);
    seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return record;
  }
  static constexpr double limit = 20 * countingSlowness;
  double seconds = 0;
};

TEST_F(HugeProjectFile, OfOneLineIsReadInTime) {
  const DesignInputs record = TimedRead(std::string(50'000'000, '7'));
  EXPECT_LT(seconds, limit);
  EXPECT_EQ(desk.TakeMessages(), (Messages{LineCountMessage(), HeaderMessage()}));
  EXPECT_EQ(record.TreloType, 0);
  EXPECT_LT(record.SteelName.size(), 1'000'000U);
}

TEST_F(HugeProjectFile, WithOneLongLineKeepsTheLinesBehindIt) {
  std::vector<std::string> expected = Intact();
  std::string bytes = ProjectBytes(With(StartUpValues(), lineSteelName, "steel"));
  bytes.insert(bytes.find("steel"), 50'000'000, 'x');
  std::vector<std::string> read = Described(TimedRead(bytes));
  EXPECT_LT(seconds, limit);
  EXPECT_EQ(desk.TakeMessages(), Messages());
  read.at(lineSteelName - 2).clear();
  expected.at(lineSteelName - 2).clear();
  EXPECT_EQ(read, expected);
}

TEST_F(HugeProjectFile, OfFiveMillionLinesIsReadInTime) {
  const std::vector<std::string> intact = Intact();
  std::string bytes = ProjectBytes(StartUpValues());
  bytes.reserve(bytes.size() + 20'000'000);
  for (int line = 0; line < 5'000'000; ++line) {
    bytes += "\"\"\r\n";
  }
  EXPECT_EQ(Described(TimedRead(bytes)), intact);
  EXPECT_LT(seconds, limit);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(HugeProjectFile, OfFiveMillionEmptyLinesIsReadInTime) {
  const DesignInputs record = TimedRead(std::string(5'000'000, '\n'));
  EXPECT_LT(seconds, limit);
  EXPECT_EQ(Described(record), Described(EmptyRecord()));
  EXPECT_EQ(desk.TakeMessages(), Messages{HeaderMessage()});
}

TEST_F(HugeProjectFile, OfTenThousandLoadsLosesNone) {
  std::string loads = "1";
  for (int number = 1; number < 10'000; ++number) {
    loads += ";" + std::to_string(number % 10);
  }
  const DesignInputs record = TimedRead(ProjectBytes(With(StartUpValues(), lineUpPForce, loads)));
  EXPECT_EQ(record.Loads.UpPForce.UpperBound(), 9999);
  EXPECT_EQ(record.Loads.UpPForce[9999], 9);
}

class UnreadableProjectFile : public DamagedProjectFile,
                              public ::testing::WithParamInterface<ErrorNumber> {};

TEST_P(UnreadableProjectFile, IsToldWithTheReasonAndReadAsNothing) {
  desk.Outside.Files.Refused[projectPath] = GetParam();
  EXPECT_EQ(Described(Read(StartUpValues())), Described(EmptyRecord()));
  // The first message is the one for writing; that is intended.
  EXPECT_EQ(desk.TakeMessages(), (Messages{OpenFailure(RuntimeError(GetParam()).Description()),
                                           LineCountMessage(), HeaderMessage()}));
}

INSTANTIATE_TEST_SUITE_P(ForAllReasons, UnreadableProjectFile,
                         ::testing::Values(ErrorNumber::BadFileName, ErrorNumber::FileNotFound,
                                           ErrorNumber::DeviceIoError,
                                           ErrorNumber::PermissionDenied,
                                           ErrorNumber::PathFileAccess, ErrorNumber::PathNotFound));

}  // namespace
}  // namespace trelonit::test
