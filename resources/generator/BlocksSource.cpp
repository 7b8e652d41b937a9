#include "resources/generator/BlocksSource.h"

#include <cstddef>

namespace trelonit::packer {

namespace {

void AppendBlock(std::string& source, const NamedBlock& block) {
  constexpr std::size_t bytesInLine = 24;
  source.append("\nstd::string_view ").append(block.Accessor).append("() {\n");
  source += "  static const unsigned char bytes[] = {";
  for (std::size_t place = 0; place < block.Bytes.size(); ++place) {
    source += place % bytesInLine == 0 ? "\n" : "";
    source += std::to_string(static_cast<unsigned char>(block.Bytes[place])) + ",";
  }
  source += "};\n  return {reinterpret_cast<const char*>(bytes), sizeof bytes};\n}\n";
}

}  // namespace

std::string BlocksSource(const std::vector<NamedBlock>& blocks) {
  std::string source =
      "// Made from the tables in resources/ when the program is built.\n"
      "#include \"resources/EmbeddedBlocks.h\"\n\n"
      "namespace trelonit {\n";
  for (const NamedBlock& block : blocks) {
    AppendBlock(source, block);
  }
  source += "\n}  // namespace trelonit\n";
  return source;
}

}  // namespace trelonit::packer
