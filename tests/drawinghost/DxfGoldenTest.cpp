#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "drawing/host/dxf/DxfWriter.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/drawinghost/PlainDrawings.h"

namespace trelonit::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream input(text);
  for (std::string line; std::getline(input, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// Compares a written file with a known one, of the writer whose files OtherProgramsTest has read.
/// Where the difference is meant, DRAWING_GOLDEN in the environment names the folder to write to.
void ExpectGolden(const std::string& written, const std::string& name) {
  if (const char* folder = std::getenv("DRAWING_GOLDEN")) {
    std::ofstream(fs::path(folder) / name, std::ios::binary) << written;
  }
  std::ifstream input(fs::path(GOLDEN_DRAWINGS) / name, std::ios::binary);
  ASSERT_TRUE(input) << name;
  const std::string golden(std::istreambuf_iterator<char>(input), {});
  const std::vector<std::string> found = LinesOf(written);
  const std::vector<std::string> wished = LinesOf(golden);
  for (std::size_t line = 0; line < std::min(found.size(), wished.size()); ++line) {
    ASSERT_EQ(found[line], wished[line]) << name << ", line " << line + 1;
  }
  EXPECT_EQ(found.size(), wished.size()) << name;
}

TEST(DxfGolden, HasTheTablesOfANewDrawing) {
  const DocumentDesk desk;
  ExpectGolden(WriteDxf(*desk.Sheet), "new.dxf");
}

TEST(DxfGolden, HasEveryKindOfEntity) {
  TreloData data = Design(3, 2, 6, 1.5, 3);
  data.UpPForce[1] = 2.5;
  ExpectGolden(WriteDxf(*ExportedDrawing(data)), "two-panels.dxf");
}

TEST(DxfGolden, HasTheTitleBlockOfForm3) {
  ExpectGolden(WriteDxf(PictureOfTitleBlock(CrowdedTitleBlock(), "М 1:50", {185, 0})),
               "title-block.dxf");
}

}  // namespace
}  // namespace trelonit::test
