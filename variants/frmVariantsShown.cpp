#include <algorithm>
#include <utility>

#include "platform/errors/Guard.h"
#include "variants/VariantTable.h"
#include "variants/frmVariants.h"
#include "workstation/live/GeometryFaults.h"
#include "workstation/results/TableFile.h"

// What the window of the studies shows and saves of its variants.

namespace trelonit {

std::string frmVariants::Describe(const VariantRow& row) const {
  const auto shown = [this](double value, int decimals) {
    return FormatShown(value, decimals, services_.Locale);
  };
  const auto length = [this](double value) { return LengthText(value, services_.Locale) + " м"; };
  std::string text = "Вариант " + shown(static_cast<double>(row.Number + 1), 0) + ": схема " +
                     std::to_string(row.Scheme) + ", пролет " + length(row.Span) + ", высота " +
                     length(row.Height) + ", панелей " + std::to_string(row.Panels);
  if (row.IsPossible()) {
    text += "\nМасса " + shown(row.Mass, 3) + " т, прогиб " + shown(row.Progib, 5) + " м";
    if (row.Progib > 0) {
      text += " (1 / " + shown(row.Span / row.Progib, 0) + " пролета)";
    }
  }
  text += "\n" + std::string(VerdictName(row.Verdict));
  return row.Reason->empty() ? text : text + ": " + *row.Reason;
}

PlotPoint frmVariants::PointOfRow(const VariantRow& row) const {
  return {.Across = cmbPlot.ListIndex() == byProgib ? row.Progib : row.Height,
          .Mass = row.Mass,
          .Kind = cmbColour.ListIndex() == byScheme ? row.Scheme : row.Panels,
          .Number = row.Number};
}

std::vector<PlotPoint> frmVariants::Points() const {
  std::vector<PlotPoint> points;
  for (const VariantRow& row : list_.Held()) {
    if (row.Passes()) {
      points.push_back(PointOfRow(row));
    }
  }
  return points;
}

std::vector<PlotPoint> frmVariants::Front() const {
  std::vector<PlotPoint> points;
  for (const VariantRow& row :
       list_.Kept(cmbPlot.ListIndex() == byProgib ? VariantFilter::FrontByProgib
                                                  : VariantFilter::FrontByHeight)) {
    points.push_back(PointOfRow(row));
  }
  return points;
}

PlotLabels frmVariants::Labels() const {
  return {.Across = cmbPlot.ListIndex() == byProgib ? "Прогиб, м" : "Высота, м",
          .Kind = cmbColour.ListIndex() == byScheme ? "Схема" : "Число панелей"};
}

std::string frmVariants::CsvOfShown() const {
  // In pieces: a table of all cells would take several times the memory of its text.
  constexpr std::size_t piece = 1000;
  const std::vector<const VariantRow*>& shown = list_.Shown();
  std::string text;
  for (std::size_t first = 0; first < shown.size() || first == 0; first += piece) {
    const std::size_t last = std::min(first + piece, shown.size());
    const std::string rows =
        CommaSeparated(TableOf({shown.begin() + static_cast<std::ptrdiff_t>(first),
                                shown.begin() + static_cast<std::ptrdiff_t>(last)}),
                       services_.Locale);
    // Each piece comes with its heads; none of them has a line end.
    text += first == 0 ? rows : rows.substr(rows.find("\r\n") + 2);
  }
  return text;
}

ResultTable frmVariants::TableOf(const std::vector<const VariantRow*>& rows) {
  ResultTable table{.Title = "Варианты", .Columns = VariantTableColumns(), .Rows = {}};
  for (const VariantRow* row : rows) {
    TableRow cells;
    for (std::size_t column = 0; column < table.Columns.size(); ++column) {
      cells.push_back(VariantCell(*row, column));
    }
    table.Rows.push_back(std::move(cells));
  }
  return table;
}

void frmVariants::mnuSaveCsv_Click() {
  Guard(services_.Messages, "mnuSaveCsv_Click", [&] {
    SaveUnderName({"Сохранить таблицу", "csv", "Таблица CSV"}, services_,
                  [this] { return CsvOfShown(); });
  });
}

void frmVariants::mnuSaveSvg_Click() {
  Guard(services_.Messages, "mnuSaveSvg_Click", [&] {
    SaveUnderName({"Сохранить график", "svg", "Рисунок SVG"}, services_,
                  [this] { return PlotAsSvg(Points(), Front(), Labels()); });
  });
}

void frmVariants::mnuSavePng_Click(const std::function<std::string()>& bytes) {
  Guard(services_.Messages, "mnuSavePng_Click", [&] {
    SaveUnderName({"Сохранить график", "png", "Рисунок PNG"}, services_, bytes);
  });
}

}  // namespace trelonit
