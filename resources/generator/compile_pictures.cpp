// Compiles the drawings of the program, so that it has none to read when it starts. Runs in the
// build.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

#include "resources/generator/PicturesSource.h"

namespace fs = std::filesystem;
namespace packer = trelonit::packer;

namespace {

packer::SvgPicture Read(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  try {
    return packer::ReadSvg(text);
  } catch (const std::exception& fault) {
    throw std::runtime_error(path.string() + ": " + fault.what());
  }
}

void Compile(const fs::path& folder, const fs::path& result) {
  std::map<std::string, packer::SvgPicture> pictures;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".svg") {
      pictures[entry.path().stem().string()] = Read(entry.path());
    }
  }
  std::ofstream file(result, std::ios::binary | std::ios::trunc);
  file << packer::PicturesSource(pictures);
  file.close();
  if (!file) {
    throw std::runtime_error(result.string() + ": the file cannot be written");
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: trelonit_compile_pictures FOLDER-OF-DRAWINGS RESULT\n";
    return 2;
  }
  try {
    Compile(argv[1], argv[2]);
  } catch (const std::exception& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return 0;
}
