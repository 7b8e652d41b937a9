#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace trelonit::packer {

/// A fault of the catalogue's sources; the text names the file and the line.
class SourceFault : public std::runtime_error {
 public:
  SourceFault(const std::string& file, std::size_t line, const std::string& what);
};

/// One line of a table, with the number that an editor shows for it.
struct CsvLine {
  std::size_t Number = 0;
  std::vector<std::string> Cells;
};

/// A table in UTF-8 with a separator that stands in none of its cells, so that nothing is quoted.
struct CsvTable {
  std::string File;
  std::vector<CsvLine> Lines;

  [[noreturn]] void Refuse(const CsvLine& line, const std::string& what) const;
};

/// Splits the text into lines and cells. Raises SourceFault for another head line than the given
/// one and for a line with another count of cells than the head has.
CsvTable ParseCsv(const std::string& file, std::string_view text, std::string_view head,
                  char separator = ',');

/// The same for a file. Raises SourceFault (line 1) where it cannot be read.
CsvTable ReadCsv(const std::filesystem::path& path, std::string_view head, char separator = ',');

}  // namespace trelonit::packer
