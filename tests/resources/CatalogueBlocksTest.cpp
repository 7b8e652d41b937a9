#include <gtest/gtest.h>
#include <string>

#include "platform/text/CodePage1251.h"
#include "resources/generator/BlocksSource.h"
#include "resources/generator/CatalogueBlocks.h"

namespace trelonit::packer {
namespace {

const std::string zeros = ",0,0,0,0,0,0,0,0,0,0,0,0,0,0\n";

std::string Head() {
  return std::string(sizesHead) + "\n";
}

CatalogueBlocks Pack(const std::string& standards, const std::string& sizes) {
  return PackCatalogue(ParseCsv("standards.csv", "Number,Name\n" + standards, standardsHead),
                       [&sizes](int standard) {
                         return ParseCsv("0" + std::to_string(standard) + ".csv", sizes, sizesHead);
                       });
}

/// What the packer says to these tables; nothing if it takes them.
std::string Fault(const std::string& standards, const std::string& sizes) {
  try {
    Pack(standards, sizes);
  } catch (const SourceFault& fault) {
    return fault.what();
  }
  return {};
}

/// The text of a fault that shows the cell.
std::string AtCell(const std::string& place, const std::string& cell, const std::string& what) {
  return place + ": \"" + cell + "\" " + what;
}

/// What the packer says to the lines of one standard's sizes.
std::string FaultOfSizes(const std::string& lines) {
  return Fault("1,Уголок\n", Head() + lines);
}

TEST(CatalogueBlocks, PackARecordByteByByte) {
  const CatalogueBlocks blocks =
      Pack("1,Тpубы\n", Head() + "Тр10x1,1,2.5,0,0,0,0,0,0,0,0,0,0,0,0.1\n");
  ASSERT_EQ(blocks.Data.size(), 179U);
  EXPECT_EQ(blocks.Data.substr(0, 15), EncodeCodePage1251("Тр10x1         "));
  EXPECT_EQ(blocks.Data.substr(15, 50), EncodeCodePage1251("Тpубы" + std::string(45, ' ')));
  EXPECT_EQ(blocks.Data.substr(65, 8), std::string("\0\0\0\0\0\0\xF0\x3F", 8));
  EXPECT_EQ(blocks.Data.substr(73, 8), std::string("\0\0\0\0\0\0\x04\x40", 8));
  EXPECT_EQ(blocks.Data.substr(81, 88), std::string(88, '\0'));
  EXPECT_EQ(blocks.Data.substr(169, 8), "\x9A\x99\x99\x99\x99\x99\xB9\x3F");
  EXPECT_EQ(blocks.Data.substr(177), std::string(2, '\0'));
}

TEST(CatalogueBlocks, NumberTheRecordsOfTheStandardsOneAfterAnother) {
  const CatalogueBlocks blocks =
      Pack("1,A\n2,B\n", Head() + "L1" + zeros + "L2" + zeros + "L3" + zeros);
  ASSERT_EQ(blocks.Index.size(), 116U);
  EXPECT_EQ(blocks.Index.substr(0, 58),
            "A" + std::string(49, ' ') + std::string("\1\0\0\0\3\0\0\0", 8));
  EXPECT_EQ(blocks.Index.substr(58),
            "B" + std::string(49, ' ') + std::string("\4\0\0\0\6\0\0\0", 8));
  EXPECT_EQ(blocks.Data.size(), 6U * 177 + 2);
}

TEST(CatalogueBlocks, TakeTheNearestDoubleOfEachNumber) {
  const CatalogueBlocks blocks = Pack("1,A\n", Head() + "L1,0.0289812,0,0,0,0,0,0,0,0,0,0,0,0,0\n");
  EXPECT_EQ(blocks.Data.substr(65, 8), "\x74\x9B\xCB\x68\x3F\xAD\x9D\x3F");
}

TEST(CatalogueBlocks, TakeTheLineEndsOfAnySystem) {
  const std::string unixLines = Head() + "L1" + zeros + "L2" + zeros;
  std::string otherLines;
  for (const char character : unixLines) {
    otherLines += character == '\n' ? "\r\n" : std::string(1, character);
  }
  EXPECT_EQ(Pack("1,A\n", otherLines).Data, Pack("1,A\n", unixLines).Data);
  EXPECT_EQ(Pack("1,A", unixLines.substr(0, unixLines.size() - 1)).Data,
            Pack("1,A\n", unixLines).Data);
}

TEST(CatalogueBlocks, RefuseAWrongCountOfColumns) {
  EXPECT_EQ(FaultOfSizes("L1" + zeros + "L2,1\n"), "01.csv:3: 15 columns expected, 2 found");
  EXPECT_EQ(FaultOfSizes("L1,0" + zeros), "01.csv:2: 15 columns expected, 16 found");
  EXPECT_EQ(FaultOfSizes("L1" + zeros + "\nL2" + zeros), "01.csv:3: 15 columns expected, 1 found");
  EXPECT_EQ(Fault("1\n", ""), "standards.csv:2: 2 columns expected, 1 found");
}

TEST(CatalogueBlocks, RefuseAnotherHeadLine) {
  const std::string fault = "01.csv:1: the head line must be \"" + std::string(sizesHead) + "\"";
  EXPECT_EQ(Fault("1,A\n", ""), fault);
  EXPECT_EQ(Fault("1,A\n", "L1" + zeros), fault);
  EXPECT_EQ(Fault("1,A\n", "\xEF\xBB\xBF" + Head() + "L1" + zeros), fault);
}

TEST(CatalogueBlocks, RefuseACellThatIsNoNumberFromZeroUp) {
  const std::string begin = "L1" + zeros + "L2,";
  for (const std::string cell :
       {"", " 1", "1 ", "1.2.3", "x", "+1", "-1", "-0", "nan", "inf", "1e999", "0x10", "1;5"}) {
    EXPECT_EQ(FaultOfSizes(begin + cell + ",0,0,0,0,0,0,0,0,0,0,0,0,0\n"),
              AtCell("01.csv:3", cell, "is not a number from 0 up"));
  }
  EXPECT_EQ(FaultOfSizes("L1,0,0,0,0,0,0,0,0,0,0,0,0,0,y\n"),
            "01.csv:2: \"y\" is not a number from 0 up");
}

TEST(CatalogueBlocks, RefuseANameThatIsTooLong) {
  // Fifteen characters fit whatever their count of bytes in the table.
  EXPECT_EQ(FaultOfSizes("ТрТрТрТрТрТрТрТ" + zeros), "");
  EXPECT_EQ(FaultOfSizes("L123456789012345" + zeros),
            "01.csv:2: \"L123456789012345\" is longer than 15 characters");
  const std::string longName(51, 'x');
  EXPECT_EQ(Fault("1,A\n2," + longName + "\n", Head() + "L1" + zeros),
            "standards.csv:3: \"" + longName + "\" is longer than 50 characters");
  EXPECT_EQ(Fault("1," + longName.substr(1) + "\n", Head() + "L1" + zeros), "");
}

TEST(CatalogueBlocks, RefuseAnEmptyName) {
  EXPECT_EQ(FaultOfSizes(zeros), "01.csv:2: the name is empty");
  EXPECT_EQ(Fault("1,\n", ""), "standards.csv:2: the name is empty");
}

TEST(CatalogueBlocks, RefuseACharacterOutsideTheCodePage) {
  const std::string fault = "has a character outside code page 1251";
  for (const std::string name : {"LΩ", "L×2", "L\t2", "L\xC2\x98", "L\xD0", "L\x7F"}) {
    EXPECT_EQ(FaultOfSizes(name + zeros), AtCell("01.csv:2", name, fault));
  }
  EXPECT_EQ(Fault("1,ГОСТ Ω\n", ""), AtCell("standards.csv:2", "ГОСТ Ω", fault));
  EXPECT_EQ(FaultOfSizes("L?№" + zeros), "");
}

TEST(CatalogueBlocks, RefuseADesignationThatRepeatsInsideAStandard) {
  EXPECT_EQ(FaultOfSizes("L1" + zeros + "L2" + zeros + "L1" + zeros),
            "01.csv:4: \"L1\" stands twice in this standard");
  // Blanks behind a name vanish in its field.
  EXPECT_EQ(FaultOfSizes("L1" + zeros + "L1 " + zeros),
            "01.csv:3: \"L1 \" stands twice in this standard");
  EXPECT_EQ(Fault("1,A\n2,B\n", Head() + "L1" + zeros), "");
}

TEST(CatalogueBlocks, RefuseStandardsThatAreNotNumberedInTurn) {
  const std::string sizes = Head() + "L1" + zeros;
  EXPECT_EQ(Fault("1,A\n3,B\n", sizes), "standards.csv:3: standard 2 expected");
  EXPECT_EQ(Fault("x,A\n", sizes), "standards.csv:2: standard 1 expected");
  EXPECT_EQ(Fault("1,A\n2,A\n", sizes), "standards.csv:3: \"A\" stands twice");
  EXPECT_EQ(Fault("1,A\n", Head()), "standards.csv:2: the standard has no type sizes");
}

TEST(CatalogueBlocks, RefuseMoreRecordsThanTheProgramCanNumber) {
  std::string sizes = Head();
  for (int size = 1; size <= 20000; ++size) {
    sizes += std::to_string(size) + zeros;
  }
  EXPECT_EQ(Fault("1,A\n", sizes), "");
  EXPECT_EQ(Fault("1,A\n2,B\n", sizes), "02.csv:12769: more than 32767 records");
}

TEST(CatalogueBlocks, NameTheFileThatCannotBeRead) {
  try {
    ReadCsv("no such folder/01.csv", sizesHead);
    FAIL() << "the file was read";
  } catch (const SourceFault& fault) {
    EXPECT_STREQ(fault.what(), "no such folder/01.csv:1: the file cannot be read");
  }
}

TEST(CatalogueBlocks, BecomeSourceThatHoldsTheirBytes) {
  const std::string source =
      BlocksSource({{"EmbeddedCatalogueData", {"\0\xFF", 2}}, {"EmbeddedCatalogueIndex", "A"}});
  EXPECT_NE(
      source.find("EmbeddedCatalogueData() {\n  static const unsigned char bytes[] = {\n0,255,};"),
      std::string::npos);
  EXPECT_NE(
      source.find("EmbeddedCatalogueIndex() {\n  static const unsigned char bytes[] = {\n65,};"),
      std::string::npos);
}

}  // namespace
}  // namespace trelonit::packer
