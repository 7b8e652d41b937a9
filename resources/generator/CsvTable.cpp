#include "resources/generator/CsvTable.h"

#include <fstream>
#include <iterator>

namespace trelonit::packer {

namespace {

std::vector<std::string> SplitCells(std::string_view line, char separator) {
  std::vector<std::string> cells;
  for (std::size_t end = line.find(separator); end != std::string_view::npos;
       end = line.find(separator)) {
    cells.emplace_back(line.substr(0, end));
    line.remove_prefix(end + 1);
  }
  cells.emplace_back(line);
  return cells;
}

}  // namespace

SourceFault::SourceFault(const std::string& file, std::size_t line, const std::string& what)
    : std::runtime_error(file + ":" + std::to_string(line) + ": " + what) {}

void CsvTable::Refuse(const CsvLine& line, const std::string& what) const {
  throw SourceFault(File, line.Number, what);
}

CsvTable ParseCsv(const std::string& file, std::string_view text, std::string_view head,
                  char separator) {
  CsvTable table{.File = file, .Lines = {}};
  const std::size_t columns = SplitCells(head, separator).size();
  for (std::size_t number = 1; !text.empty() || number == 1; ++number) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    // A checkout may have given the file the line ends of its system.
    if (!line.empty() && line.back() == '\r') {
      line.remove_suffix(1);
    }
    if (number == 1) {
      if (line != head) {
        throw SourceFault(file, number, "the head line must be \"" + std::string(head) + "\"");
      }
      continue;
    }
    table.Lines.push_back({.Number = number, .Cells = SplitCells(line, separator)});
    if (const std::size_t found = table.Lines.back().Cells.size(); found != columns) {
      table.Refuse(table.Lines.back(), std::to_string(columns) + " columns expected, " +
                                           std::to_string(found) + " found");
    }
  }
  return table;
}

CsvTable ReadCsv(const std::filesystem::path& path, std::string_view head, char separator) {
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file.is_open() || file.bad()) {
    throw SourceFault(path.string(), 1, "the file cannot be read");
  }
  return ParseCsv(path.string(), text, head, separator);
}

}  // namespace trelonit::packer
