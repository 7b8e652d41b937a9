#include <gtest/gtest.h>

#include "resources/generator/LettersSource.h"

namespace trelonit::packer {
namespace {

const std::string head = "Code,Advance,Outline\n";
const std::string last = "FFFD,10,M 0 0 L 5 0 L 5 5 Z\n";

std::string SourceOf(const std::string& lines) {
  return LettersSource(ParseCsv("letters.csv", head + lines, lettersHead));
}

/// What is said of the table; empty where nothing is wrong with it.
std::string FaultIn(const std::string& lines) {
  try {
    SourceOf(lines);
  } catch (const SourceFault& fault) {
    return fault.what();
  }
  return {};
}

TEST(LettersSource, CarriesCodesWidthsAndOutlines) {
  const std::string source = SourceOf("0020,569,\n0041,600,M 1 -2 Q 3 4 5 6 Z\n" + last);
  EXPECT_NE(source.find("{32, 569, \"\", {}},"), std::string::npos);
  EXPECT_NE(source.find("n0041[] = {1, -2, 3, 4, 5, 6};"), std::string::npos);
  EXPECT_NE(source.find("{65, 600, \"MQZ\", Carried<std::int16_t>(n0041)},"), std::string::npos);
}

TEST(LettersSource, RefusesALineThatIsNoLetter) {
  for (const char* line :
       {"0041,600,M 1 2", "0041,600,M 1 Z", "0041,600,L 1 2 Z", "0041,600,M 1 2 M 3 4 Z",
        "0041,600,M 1 2 C 1 2 3 4 5 6 Z", "0041,600,M 1 2 40000 Z", "0041,600,M 1 x Z",
        "0041,600,Z", "0041,-1,", "0041,,", "00G1,600,", ",600,", "0041,600,M  1 2 Z"}) {
    EXPECT_NE(FaultIn(std::string(line) + "\n" + last).find("letters.csv"), std::string::npos)
        << line;
  }
}

TEST(LettersSource, RefusesCodesOutOfOrder) {
  EXPECT_NE(FaultIn("0042,1,\n0041,1,\n" + last), "");
  EXPECT_NE(FaultIn("0041,1,\n0041,1,\n" + last), "");
}

TEST(LettersSource, RefusesATableWithoutTheOneForMissingLetters) {
  EXPECT_NE(FaultIn("0041,1,\n"), "");
  EXPECT_NE(FaultIn(""), "");
}

}  // namespace
}  // namespace trelonit::packer
