#include "resources/generator/SteelBlock.h"

#include <array>
#include <set>

#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"

namespace trelonit::packer {

namespace {

/// Longest texts of the four columns, in characters.
constexpr std::array<std::size_t, 4> fieldLengths{5, 15, 3, 3};
constexpr std::string_view blockSeparators = "#$*\r\n";
// The reader closes a line at each of them; the list of grades counts on it.
constexpr std::size_t tail = 3;

std::string PackField(const CsvTable& table, const CsvLine& line, std::size_t column) {
  const std::string& text = line.Cells[column];
  if (text.empty()) {
    table.Refuse(line, "a cell is empty");
  }
  if (Characters(text).size() > fieldLengths[column]) {
    table.Refuse(line, "\"" + text + "\" is longer than " + std::to_string(fieldLengths[column]) +
                           " characters");
  }
  std::string packed = EncodeCodePage1251(text);
  if (DecodeCodePage1251(packed) != text ||
      packed.find_first_of(blockSeparators) != std::string::npos) {
    table.Refuse(line, "\"" + text + "\" has a character that the block cannot hold");
  }
  return packed;
}

}  // namespace

std::string PackSteel(const CsvTable& table) {
  std::string block;
  std::string grade;
  std::set<std::string> grades;
  for (const CsvLine& line : table.Lines) {
    const std::string name = PackField(table, line, 0);
    if (name != grade) {
      if (!grades.insert(name).second) {
        table.Refuse(line, "the grade \"" + line.Cells[0] + "\" stands at two places");
      }
      block += (block.empty() ? "" : "\r\n") + name + "#";
      grade = name;
    } else {
      block += "$";
    }
    block += PackField(table, line, 1) + "*" + PackField(table, line, 2) + "*" +
             PackField(table, line, 3);
  }
  block += "\r\n";
  block.append(tail, '\0');
  return block;
}

}  // namespace trelonit::packer
