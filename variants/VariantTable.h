#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "variants/VariantRow.h"
#include "workstation/results/ResultTable.h"

namespace trelonit {

// Variants as rows of a table, after RFC 4180: a comma between the fields, CRLF behind a row,
// quotes where a field holds either; numbers with a decimal point, as short as they can be to be
// read back unchanged; UTF-8. Rows do not depend on one another.

/// The names of the columns, with their units.
std::vector<std::string> VariantColumns();

/// A variant's fields, as many as there are columns. Figures of one that is impossible are empty.
std::vector<std::string> VariantFields(const Variant& variant);

/// The same columns for people: short heads and decimals.
const std::vector<TableColumn>& VariantTableColumns();

/// Places in it.
constexpr std::size_t numberColumn = 0;
/// What says most of a variant: verdict, mass, deflections.
std::vector<std::size_t> VariantMainColumns();
/// What is left away where all rows have it alike: sizes, layouts, standards, gaps.
bool IsVariantColumnAside(std::size_t column);
/// Gaps follow the sizes: they differ where nobody asked for it.
bool IsVariantGapColumn(std::size_t column);

/// A cell of such a table; nothing for a figure of one that is impossible.
TableCell VariantCell(const VariantRow& row, std::size_t column);

/// One row.
std::string CsvRow(const std::vector<std::string>& fields);

/// What the table calls it.
std::string_view VerdictName(VariantVerdict verdict);

}  // namespace trelonit
