#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/text/NumberText.h"

namespace trelonit {

/// Nothing, a text or a number.
using TableCell = std::variant<std::monostate, std::string, double>;
using TableRow = std::vector<TableCell>;

struct TableColumn {
  std::string Caption;
  /// The head where there is little room, in lines; the caption where it is empty.
  std::string Short;
  std::string Hint;
  /// Of its numbers as they are shown.
  int Decimals = 0;

  const std::string& Head() const { return Short.empty() ? Caption : Short; }
};

/// Figures to be shown, sorted, copied, stored and printed. Every row has a cell a column.
struct ResultTable {
  std::string Title;
  std::vector<TableColumn> Columns;
  std::vector<TableRow> Rows;
};

/// A cell for people, with the locale's groups; empty for nothing.
std::string ShownCell(const TableCell& cell, const TableColumn& column, const NumberLocale& locale);

// Both begin with the captions. Numbers have the locale's decimal separator and no groups, so that
// a spreadsheet of the same desktop reads them.

/// For the clipboard: a tab between cells, a line feed between rows. A tab or a line end inside a
/// text becomes a blank.
std::string TabSeparated(const ResultTable& table, const NumberLocale& locale);

/// A file by RFC 4180, UTF-8 with its mark. The separator is a comma, or a semicolon where numbers
/// have a comma.
std::string CommaSeparated(const ResultTable& table, const NumberLocale& locale);

}  // namespace trelonit
