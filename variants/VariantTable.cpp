#include "variants/VariantTable.h"

#include <array>
#include <charconv>
#include <cmath>

namespace trelonit {

namespace {

struct GroupColumn {
  const char* Name;
  const char* Short;
  SectionPlace Place;
};

constexpr std::array<GroupColumn, sectionCount> groupColumns{{
    {"Верхний пояс", "Верхний\nпояс", sectionUpPoyas},
    {"Нижний пояс", "Нижний\nпояс", sectionDwnPoyas},
    {"Раскосы", "Раскосы", sectionRaskos},
    {"Стойки", "Стойки", sectionStoyka},
    {"Опорные раскосы", "Опорные\nраскосы", sectionOpornRaskos},
}};

/// What a table has of each group, in this order.
enum GroupFigure : std::size_t {
  layoutFigure,
  standardFigure,
  profileFigure,
  gapFigure,
  useFigure,
  groupFigures
};

enum VariantColumn : std::size_t {
  schemeColumn = numberColumn + 1,
  spanColumn,
  heightColumn,
  endPanelColumn,
  panelsColumn,
  steelColumn,
  strengthColumn,
  firstGroupColumn,
  massColumn = firstGroupColumn + sectionCount * groupFigures,
  progibColumn,
  relativeProgibColumn,
  roundsColumn,
  verdictColumn,
  reasonColumn
};

std::string Text(double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), number == 0 ? 0.0 : number).ptr;
  return {digits.begin(), end};
}

std::vector<TableColumn> MakeColumns() {
  constexpr int lengthDecimals = 3;
  constexpr int useDecimals = 3;
  constexpr int progibDecimals = 5;
  std::vector<TableColumn> columns{
      {.Caption = "Номер", .Short = "№", .Hint = {}},
      {.Caption = "Схема", .Short = {}, .Hint = {}},
      {.Caption = "Пролет, м", .Short = "Пролет,\nм", .Hint = {}, .Decimals = lengthDecimals},
      {.Caption = "Высота, м", .Short = "Высота,\nм", .Hint = {}, .Decimals = lengthDecimals},
      {.Caption = "Крайняя панель, м",
       .Short = "Крайняя\nпанель, м",
       .Hint = {},
       .Decimals = lengthDecimals},
      {.Caption = "Число панелей", .Short = "Число\nпанелей", .Hint = {}},
      {.Caption = "Сталь", .Short = {}, .Hint = {}},
      {.Caption = "Ry, МПа", .Short = "Ry,\nМПа", .Hint = {}, .Decimals = 1}};
  for (const GroupColumn& group : groupColumns) {
    const std::string name = group.Name;
    const std::string shortName = group.Short + std::string(":\n");
    const auto add = [&](const char* what, const char* shortly, int decimals = 0) {
      columns.push_back(
          {.Caption = name + what, .Short = shortName + shortly, .Hint = {}, .Decimals = decimals});
    };
    add(": расположение", "расп.");
    add(": сортамент", "сорт.");
    add(": профиль", "профиль");
    add(": зазор, мм", "зазор, мм", 1);
    add(": коэффициент использования", "коэфф.", useDecimals);
  }
  columns.push_back({.Caption = "Масса, т", .Short = "Масса,\nт", .Hint = {}, .Decimals = 3});
  columns.push_back(
      {.Caption = "Прогиб, м", .Short = "Прогиб,\nм", .Hint = {}, .Decimals = progibDecimals});
  columns.push_back({.Caption = "Прогиб / пролет",
                     .Short = "Прогиб /\nпролет",
                     .Hint = {},
                     .Decimals = progibDecimals});
  columns.push_back({.Caption = "Кругов подбора", .Short = "Кругов\nподбора", .Hint = {}});
  columns.push_back({.Caption = "Итог", .Short = {}, .Hint = {}});
  columns.push_back({.Caption = "Причина", .Short = {}, .Hint = {}});
  return columns;
}

TableCell GroupCell(const VariantRow& row, const VariantRow::Group& group, std::size_t figure) {
  switch (figure) {
    case layoutFigure:
      return static_cast<double>(group.Layout);
    case standardFigure:
      return static_cast<double>(group.Standard);
    case profileFigure:
      return row.IsPossible() ? *group.Profile : std::string();
    case gapFigure:
      return group.Paired ? TableCell(group.Gap) : TableCell();
    default:
      return row.IsPossible() ? TableCell(group.Use) : TableCell();
  }
}

}  // namespace

const std::vector<TableColumn>& VariantTableColumns() {
  static const std::vector<TableColumn> columns = MakeColumns();
  return columns;
}

std::vector<std::size_t> VariantMainColumns() {
  return {verdictColumn, massColumn, progibColumn, relativeProgibColumn};
}

bool IsVariantColumnAside(std::size_t column) {
  if (column < firstGroupColumn) {
    return column != numberColumn && column != heightColumn && column != panelsColumn;
  }
  if (column >= massColumn) {
    return column == roundsColumn || column == reasonColumn;
  }
  const std::size_t figure = (column - firstGroupColumn) % groupFigures;
  return figure != profileFigure && figure != useFigure;
}

bool IsVariantGapColumn(std::size_t column) {
  return column >= firstGroupColumn && column < massColumn &&
         (column - firstGroupColumn) % groupFigures == gapFigure;
}

std::vector<std::string> VariantColumns() {
  std::vector<std::string> names;
  for (const TableColumn& column : VariantTableColumns()) {
    names.push_back(column.Caption);
  }
  return names;
}

TableCell VariantCell(const VariantRow& row, std::size_t column) {
  const auto figure = [&row](double number) {
    return row.IsPossible() ? TableCell(number) : TableCell();
  };
  switch (column) {
    case numberColumn:
      return static_cast<double>(row.Number + 1);
    case schemeColumn:
      return static_cast<double>(row.Scheme);
    case spanColumn:
      return row.Span;
    case heightColumn:
      return row.Height;
    case endPanelColumn:
      return row.EndPanel;
    case panelsColumn:
      return static_cast<double>(row.Panels);
    case steelColumn:
      return *row.Steel;
    case strengthColumn:
      return row.Ry;
    case massColumn:
      return figure(row.Mass);
    case progibColumn:
      return figure(row.Progib);
    case relativeProgibColumn:
      return figure(row.Progib / row.Span);
    case roundsColumn:
      return static_cast<double>(row.Rounds);
    case verdictColumn:
      return std::string(VerdictName(row.Verdict));
    case reasonColumn:
      return *row.Reason;
    default:
      break;
  }
  const std::size_t place = column - firstGroupColumn;
  const SectionPlace group = groupColumns[place / groupFigures].Place;
  return GroupCell(row, row.Groups[static_cast<std::size_t>(group) - 1], place % groupFigures);
}

std::vector<std::string> VariantFields(const Variant& variant) {
  const VariantRow row = VariantRows().Of(variant);
  const std::vector<TableColumn>& columns = VariantTableColumns();
  std::vector<std::string> fields;
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const TableCell cell = VariantCell(row, column);
    const auto* number = std::get_if<double>(&cell);
    const auto* text = std::get_if<std::string>(&cell);
    // A whole number of eight digits must not get an exponent.
    fields.push_back(text != nullptr                 ? *text
                     : number == nullptr             ? std::string()
                     : columns[column].Decimals == 0 ? std::to_string(std::llround(*number))
                                                     : Text(*number));
  }
  return fields;
}

std::string CsvRow(const std::vector<std::string>& fields) {
  std::string row;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) {
      row += ',';
    }
    if (field.find_first_of(",\"\r\n") == std::string::npos) {
      row += field;
      continue;
    }
    row += '"';
    for (const char letter : field) {
      row += letter;
      if (letter == '"') {
        row += '"';
      }
    }
    row += '"';
  }
  return row + "\r\n";
}

std::string_view VerdictName(VariantVerdict verdict) {
  switch (verdict) {
    case VariantVerdict::Passes:
      return "годится";
    case VariantVerdict::Fails:
      return "не годится";
    case VariantVerdict::Impossible:
      break;
  }
  return "невозможен";
}

}  // namespace trelonit
