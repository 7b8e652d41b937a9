// Compiles the letters of drawings, so that the program carries them. Runs in the build.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "resources/generator/LettersSource.h"

namespace fs = std::filesystem;
namespace packer = trelonit::packer;

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: trelonit_compile_letters TABLE RESULT\n";
    return 2;
  }
  try {
    const std::string source = packer::LettersSource(packer::ReadCsv(argv[1], packer::lettersHead));
    std::ofstream file(fs::path(argv[2]), std::ios::binary | std::ios::trunc);
    file << source;
    file.close();
    if (!file) {
      throw std::runtime_error(std::string(argv[2]) + ": the file cannot be written");
    }
  } catch (const std::exception& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return 0;
}
