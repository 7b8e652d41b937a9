// Packs the tables of sections and steels into the blocks that the program carries. Runs in the
// build.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "resources/generator/BlocksSource.h"
#include "resources/generator/CatalogueBlocks.h"
#include "resources/generator/CsvTable.h"
#include "resources/generator/SteelBlock.h"

namespace fs = std::filesystem;
namespace packer = trelonit::packer;

namespace {

/// "01.csv" to "22.csv".
fs::path SizesPath(const fs::path& folder, int standard) {
  const std::string number = std::to_string(standard);
  return folder / ((number.size() < 2 ? "0" + number : number) + ".csv");
}

void Write(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) {
    throw std::runtime_error(path.string() + ": the file cannot be written");
  }
}

void Pack(const fs::path& tables, const fs::path& steel, const fs::path& output) {
  const packer::CatalogueBlocks blocks = packer::PackCatalogue(
      packer::ReadCsv(tables / "standards.csv", packer::standardsHead), [&tables](int standard) {
        return packer::ReadCsv(SizesPath(tables, standard), packer::sizesHead);
      });
  const std::string steels =
      packer::PackSteel(packer::ReadCsv(steel, packer::steelHead, packer::steelSeparator));
  // Only now: a fault in the tables leaves the files of the last build as they were.
  Write(output / "101.bin", steels);
  Write(output / "102.bin", blocks.Data);
  Write(output / "103.bin", blocks.Index);
  Write(output / "EmbeddedBlocks.cpp",
        packer::BlocksSource({{"EmbeddedSteelTable", steels},
                              {"EmbeddedCatalogueData", blocks.Data},
                              {"EmbeddedCatalogueIndex", blocks.Index}}));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: trelonit_pack_resources FOLDER-OF-TABLES STEEL-TABLE FOLDER-OF-RESULTS\n";
    return 2;
  }
  try {
    Pack(argv[1], argv[2], argv[3]);
  } catch (const std::exception& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return 0;
}
