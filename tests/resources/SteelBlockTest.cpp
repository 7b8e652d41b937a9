#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/text/CodePage1251.h"
#include "resources/EmbeddedResources.h"
#include "resources/generator/SteelBlock.h"
#include "tests/support/SteelRows.h"

namespace trelonit::packer {
namespace {

std::string Pack(const std::string& lines) {
  return PackSteel(
      ParseCsv("steel.csv", std::string(steelHead) + "\n" + lines, steelHead, steelSeparator));
}

/// What the packer says to these lines; nothing if it takes them.
std::string Fault(const std::string& lines) {
  try {
    Pack(lines);
  } catch (const SourceFault& fault) {
    return fault.what();
  }
  return {};
}

/// The text of a fault that shows the cell in the first line under the head.
std::string AtCell(const std::string& cell, const std::string& what) {
  return "steel.csv:2: \"" + cell + "\" " + what;
}

/// The rows as the block is to hold them, put together without the packer.
std::string ExpectedBlock() {
  std::string text;
  std::string grade;
  for (const test::SteelRow& row : test::steelRows) {
    if (row.Grade == grade) {
      text += '$';
    } else {
      text += (grade.empty() ? "" : "\r\n") + std::string(row.Grade) + "#";
      grade = row.Grade;
    }
    text += std::string(row.Range) + "*" + row.Sheet + "*" + row.Shaped;
  }
  return EncodeCodePage1251(text + "\r\n") + std::string(3, '\0');
}

std::string EmbeddedBlock() {
  EmbeddedResources resources;
  return std::string(resources.CustomBlock(101));
}

TEST(SteelBlock, HoldsTheWholeTableByteForByte) {
  EXPECT_EQ(EmbeddedBlock(), ExpectedBlock());
}

TEST(SteelBlock, HoldsSixHundredAndSeventySixBytes) {
  EXPECT_EQ(EmbeddedBlock().size(), 676U);
}

TEST(SteelBlock, EndsItsTextWhereTheReaderOfTheBlockEndsTheLastLine) {
  const std::string block = EmbeddedBlock();
  EXPECT_EQ(block.rfind('\n'), 672U);
  EXPECT_EQ(block.substr(671), std::string("\r\n\0\0\0", 5));
}

TEST(SteelBlock, BeginsWithTheFirstGradeInTheCodePageOfTheBlock) {
  EXPECT_EQ(EmbeddedBlock().substr(0, 27),
            "\xD1"
            "235#"
            "\xCE\xF2 2 \xE4\xEE 20*230*230$\xD1\xE2.");
}

TEST(SteelBlock, EndsEachOfThirteenLinesWithCarriageReturnAndLineFeed) {
  const std::string block = EmbeddedBlock();
  int lines = 0;
  for (std::size_t place = block.find('\n'); place != std::string::npos;
       place = block.find('\n', place + 1)) {
    EXPECT_EQ(block[place - 1], '\r') << place;
    ++lines;
  }
  EXPECT_EQ(lines, 13);
}

TEST(SteelBlock, PutsRangesOfOneGradeIntoOneLine) {
  EXPECT_EQ(Pack("A;x;1;2\nA;y;3;-\nB;z;-;4\n"),
            "A#x*1*2$y*3*-\r\nB#z*-*4\r\n" + std::string(3, '\0'));
}

TEST(SteelBlock, TakesTextsThatFillTheirFields) {
  EXPECT_EQ(Pack("С345К;123456789012345;123;456\n"),
            EncodeCodePage1251("С345К#123456789012345*123*456\r\n") + std::string(3, '\0'));
}

TEST(SteelBlock, RefusesTextsThatAreTooLongForTheirFields) {
  EXPECT_EQ(Fault("С345КТ;x;1;2\n"), AtCell("С345КТ", "is longer than 5 characters"));
  EXPECT_EQ(Fault("A;1234567890123456;1;2\n"),
            AtCell("1234567890123456", "is longer than 15 characters"));
  EXPECT_EQ(Fault("A;x;1000;2\n"), AtCell("1000", "is longer than 3 characters"));
  EXPECT_EQ(Fault("A;x;1;2000\n"), AtCell("2000", "is longer than 3 characters"));
}

TEST(SteelBlock, RefusesEmptyCells) {
  for (const std::string line : {";x;1;2", "A;;1;2", "A;x;;2", "A;x;1;"}) {
    EXPECT_EQ(Fault(line + "\n"), "steel.csv:2: a cell is empty") << line;
  }
}

TEST(SteelBlock, RefusesTheSeparatorsOfTheBlockInsideATextOfAnyColumn) {
  const std::string fault = "has a character that the block cannot hold";
  for (const char* const mark : {"#", "$", "*", "\r"}) {
    // Not the last character: there a carriage return belongs to the line's end.
    const std::string cell = std::string(mark) + "x";
    EXPECT_EQ(Fault(cell + ";x;1;2\n"), AtCell(cell, fault));
    EXPECT_EQ(Fault("A;" + cell + ";1;2\n"), AtCell(cell, fault));
    EXPECT_EQ(Fault("A;x;" + cell + ";2\n"), AtCell(cell, fault));
    EXPECT_EQ(Fault("A;x;1;" + cell + "\n"), AtCell(cell, fault));
  }
}

TEST(SteelBlock, RefusesCharactersOutsideTheCodePage) {
  for (const std::string cell : {"≤", "Ω", "\xD0", "漢"}) {
    EXPECT_EQ(Fault("A;" + cell + ";1;2\n"),
              AtCell(cell, "has a character that the block cannot hold"));
  }
}

TEST(SteelBlock, RefusesAGradeThatComesBackAfterAnotherOne) {
  EXPECT_EQ(Fault("A;x;1;2\nB;x;1;2\nA;y;1;2\n"),
            "steel.csv:4: the grade \"A\" stands at two places");
}

TEST(SteelBlock, RefusesAnotherHeadAndAWrongCountOfCells) {
  EXPECT_THROW(ParseCsv("steel.csv", "Grade,Range\n", steelHead, steelSeparator), SourceFault);
  EXPECT_EQ(Fault("A;x;1\n"), "steel.csv:2: 4 columns expected, 3 found");
  EXPECT_EQ(Fault("A;x;1;2;3\n"), "steel.csv:2: 4 columns expected, 5 found");
}

}  // namespace
}  // namespace trelonit::packer
