#include "resources/generator/CatalogueBlocks.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <set>
#include <system_error>

#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"

namespace trelonit::packer {

namespace {

constexpr std::size_t designationLength = 15;
constexpr std::size_t standardNameLength = 50;
// The records are numbered by 16-bit integers in the program.
constexpr std::int32_t mostRecords = 32767;
// Carried at the end of the data block since its first edition: the program's cut of the block
// counts on them.
constexpr std::size_t dataTail = 2;

// Written here a second time, apart from the program's own record coding: the tests hold one
// against the other.

/// Byte by byte, so that the blocks are the same whatever machine builds them.
void AppendLittleEndian(std::string& bytes, std::uint64_t value, int count) {
  for (int place = 0; place < count; ++place) {
    bytes.push_back(static_cast<char>(static_cast<unsigned char>(value >> (8 * place))));
  }
}

bool IsPrintable(unsigned char byte) {
  constexpr unsigned char unassigned = 0x98;
  return byte >= 0x20 && byte != 0x7F && byte != unassigned;
}

/// The text as a field of code page 1251, padded with blanks.
std::string PackText(const CsvTable& table, const CsvLine& line, const std::string& text,
                     std::size_t length) {
  const std::u32string characters = Characters(text);
  if (characters.empty()) {
    table.Refuse(line, "the name is empty");
  }
  if (characters.size() > length) {
    table.Refuse(line, "\"" + text + "\" is longer than " + std::to_string(length) + " characters");
  }
  std::string field;
  for (const char32_t character : characters) {
    const unsigned char byte = ToCodePage1251(character);
    if (!IsPrintable(byte) || (byte == '?' && character != U'?')) {
      table.Refuse(line, "\"" + text + "\" has a character outside code page 1251");
    }
    field.push_back(static_cast<char>(byte));
  }
  field.resize(length, ' ');
  return field;
}

double ParseCell(const CsvTable& table, const CsvLine& line, const std::string& cell) {
  double value = 0;
  const char* const end = cell.data() + cell.size();
  const auto [stop, fault] = std::from_chars(cell.data(), end, value);
  if (fault != std::errc() || stop != end || !std::isfinite(value) || std::signbit(value)) {
    table.Refuse(line, "\"" + cell + "\" is not a number from 0 up");
  }
  return value;
}

}  // namespace

CatalogueBlocks PackCatalogue(const CsvTable& standards,
                              const std::function<CsvTable(int standard)>& sizesOf) {
  CatalogueBlocks blocks;
  std::set<std::string> names;
  std::int32_t records = 0;
  int number = 0;
  for (const CsvLine& standard : standards.Lines) {
    ++number;
    if (standard.Cells[0] != std::to_string(number)) {
      standards.Refuse(standard, "standard " + std::to_string(number) + " expected");
    }
    const std::string name = PackText(standards, standard, standard.Cells[1], standardNameLength);
    if (!names.insert(name).second) {
      standards.Refuse(standard, "\"" + standard.Cells[1] + "\" stands twice");
    }

    const CsvTable sizes = sizesOf(number);
    std::set<std::string> designations;
    const std::int32_t first = records + 1;
    for (const CsvLine& size : sizes.Lines) {
      if (++records > mostRecords) {
        sizes.Refuse(size, "more than " + std::to_string(mostRecords) + " records");
      }
      const std::string designation = PackText(sizes, size, size.Cells[0], designationLength);
      if (!designations.insert(designation).second) {
        sizes.Refuse(size, "\"" + size.Cells[0] + "\" stands twice in this standard");
      }
      blocks.Data.append(designation).append(name);
      for (std::size_t cell = 1; cell < size.Cells.size(); ++cell) {
        AppendLittleEndian(
            blocks.Data, std::bit_cast<std::uint64_t>(ParseCell(sizes, size, size.Cells[cell])), 8);
      }
    }
    if (sizes.Lines.empty()) {
      standards.Refuse(standard, "the standard has no type sizes");
    }
    blocks.Index.append(name);
    AppendLittleEndian(blocks.Index, static_cast<std::uint64_t>(first), 4);
    AppendLittleEndian(blocks.Index, static_cast<std::uint64_t>(records), 4);
  }
  blocks.Data.append(dataTail, '\0');
  return blocks;
}

}  // namespace trelonit::packer
