#include "workstation/results/ResultTable.h"

#include <functional>

namespace trelonit {

namespace {

/// Without it spreadsheets take the file for one of an old code page.
constexpr const char* byteOrderMark = "\xEF\xBB\xBF";

using Quote = std::function<std::string(std::string)>;

std::string PlainCell(const TableCell& cell, const TableColumn& column,
                      const NumberLocale& locale) {
  if (const auto* text = std::get_if<std::string>(&cell)) {
    return *text;
  }
  const auto* number = std::get_if<double>(&cell);
  return number == nullptr ? std::string() : FormatPlain(*number, column.Decimals, locale);
}

std::string Separated(const ResultTable& table, const NumberLocale& locale,
                      const std::string& separator, const std::string& lineEnd,
                      const Quote& quote) {
  std::string text;
  const auto put = [&](std::size_t column, std::string cell) {
    text += (column == 0 ? std::string() : separator) + quote(std::move(cell));
  };
  for (std::size_t column = 0; column < table.Columns.size(); ++column) {
    put(column, table.Columns[column].Caption);
  }
  text += lineEnd;
  for (const TableRow& row : table.Rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      put(column, PlainCell(row[column], table.Columns[column], locale));
    }
    text += lineEnd;
  }
  return text;
}

}  // namespace

std::string ShownCell(const TableCell& cell, const TableColumn& column,
                      const NumberLocale& locale) {
  const auto* number = std::get_if<double>(&cell);
  return number == nullptr ? PlainCell(cell, column, locale)
                           : FormatShown(*number, column.Decimals, locale);
}

std::string TabSeparated(const ResultTable& table, const NumberLocale& locale) {
  return Separated(table, locale, "\t", "\n", [](std::string cell) {
    for (char& byte : cell) {
      if (byte == '\t' || byte == '\n' || byte == '\r') {
        byte = ' ';
      }
    }
    return cell;
  });
}

std::string CommaSeparated(const ResultTable& table, const NumberLocale& locale) {
  const std::string separator = locale.DecimalSeparator == "," ? ";" : ",";
  return byteOrderMark + Separated(table, locale, separator, "\r\n", [&](std::string cell) {
           if (cell.find_first_of("\"\r\n" + separator) == std::string::npos) {
             return cell;
           }
           std::string quoted = "\"";
           for (const char byte : cell) {
             quoted += byte;
             if (byte == '"') {
               quoted += byte;
             }
           }
           return quoted + '"';
         });
}

}  // namespace trelonit
