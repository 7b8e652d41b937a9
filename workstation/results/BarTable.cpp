#include "workstation/results/BarTable.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "analysis/Scheme.h"
#include "catalogue/SectionLayouts.h"
#include "checks/ElementGroups.h"
#include "platform/errors/Guard.h"

namespace trelonit {

namespace {

constexpr int barLengthDecimals = 3;
constexpr int barForceDecimals = 4;
constexpr int barUseDecimals = 5;

/// A coefficient of a group by the calculation.
struct ToldColumn {
  double GroupCheck::*Figure;
  const char* Caption;
  const char* Short;
  /// Whether 0 says that the group has no such check.
  bool ZeroIsNone;
};
constexpr std::array<ToldColumn, 7> toldColumns{{
    {&GroupCheck::KStrength, "прочность", "прочн.", true},
    {&GroupCheck::KStabX, "устойчивость в плоскости фермы", "устойч.\nв пл.", true},
    {&GroupCheck::KStabY, "устойчивость из плоскости фермы", "устойч.\nиз пл.", true},
    {&GroupCheck::KFlexX, "гибкость в плоскости фермы", "гибк.\nв пл.", false},
    {&GroupCheck::KFlexY, "гибкость из плоскости фермы", "гибк.\nиз пл.", false},
    {&GroupCheck::KUserX, "заданная гибкость в плоскости фермы", "своя λ\nв пл.", false},
    {&GroupCheck::KUserY, "заданная гибкость из плоскости фермы", "своя λ\nиз пл.", false},
}};
constexpr std::array<const char*, memberCheckCount> opinionShort{
    "прочн.", "устойч.\nв пл.", "устойч.\nиз пл.", "гибк.\nв пл.", "гибк.\nиз пл."};

std::vector<TableColumn> BarColumns() {
  std::vector<TableColumn> columns{
      {"Группа"},
      {"Стержень", "Стер-\nжень", "Номер в группе слева направо, как в списке усилий"},
      {"Длина, м", "Длина,\nм", {}, barLengthDecimals},
      {"Усилие, т", "Усилие,\nт", "Растяжение положительно, сжатие отрицательно", barForceDecimals},
      {"Сечение", {}, "Сечение группы; «2» - два профиля"}};
  for (const ToldColumn& told : toldColumns) {
    columns.push_back({std::string("Расчет: ") + told.Caption, std::string("Расчет\n") + told.Short,
                       std::string("Коэффициент группы по расчету: ") + told.Caption,
                       barUseDecimals});
  }
  for (const MemberCheckRow& check : memberChecks) {
    const char* lines = opinionShort[static_cast<std::size_t>(check.Check)];
    columns.push_back({std::string("СНиП: ") + check.Name, std::string("СНиП\n") + lines,
                       std::string("Коэффициент этого стержня по второму мнению: ") + check.Name,
                       barUseDecimals});
  }
  return columns;
}

TableCell CellUnlessNone(double value, bool zeroIsNone) {
  return zeroIsNone && !(value > 0) ? TableCell() : TableCell(value);
}

TableRow RowOfBar(const TrussBar& bar, const Calculation& calculation,
                  const BarJudgement* judgement) {
  const ElementGroupRow& group = RowOf(bar.Group);
  const GroupCheck& check = calculation.CheckData.*group.Block;
  TableRow row{std::string(group.Name), static_cast<double>(bar.Number), bar.Length,
               (calculation.TreloResult.*bar.Forces)[bar.Subscript],
               SectionName(calculation.ElementSection[group.Place])};
  // A check that broke off has an empty record.
  const bool checked = check.Area > 0;
  for (const ToldColumn& told : toldColumns) {
    row.push_back(checked ? CellUnlessNone(check.*told.Figure, told.ZeroIsNone) : TableCell());
  }
  for (const MemberCheckRow& told : memberChecks) {
    const bool stability = told.Check == MemberCheck::StabX || told.Check == MemberCheck::StabY;
    row.push_back(judgement == nullptr ? TableCell()
                                       : CellUnlessNone(judgement->Figure(told.Check), stability));
  }
  return row;
}

/// Places of the bars in the order of the force list.
std::vector<std::size_t> InOrderOfTheForceList(const Truss& truss) {
  constexpr std::array<ElementGroup, elementGroupCount> order{
      ElementGroup::UpPoyas, ElementGroup::DwnPoyas, ElementGroup::Raskos,
      ElementGroup::OpornRaskos, ElementGroup::Stoyka};
  std::vector<std::size_t> places(truss.Bars.size());
  std::iota(places.begin(), places.end(), 0);
  std::stable_sort(places.begin(), places.end(), [&](std::size_t one, std::size_t other) {
    const auto rank = [&](std::size_t place) {
      return std::find(order.begin(), order.end(), truss.Bars[place].Group);
    };
    return rank(one) < rank(other);
  });
  return places;
}

void AddBars(BarTable& table, const Calculation& calculation, const Opinion& opinion) {
  const Truss truss = TrussOf(calculation.TreloData);
  const bool judged = opinion.Bars.size() == truss.Bars.size();
  for (const std::size_t place : InOrderOfTheForceList(truss)) {
    const TrussBar& bar = truss.Bars[place];
    table.Table.Rows.push_back(RowOfBar(bar, calculation, judged ? &opinion.Bars[place] : nullptr));
    table.Bars.push_back({OptionOf(bar.Group), bar.Number});
  }
}

}  // namespace

BarTable BuildBarTable(const Calculation& calculation, const Opinion& opinion) {
  const auto empty = [] {
    return BarTable{.Table = {.Title = "Стержни фермы", .Columns = BarColumns()}};
  };
  BarTable table = empty();
  if (!PassOver([&] { AddBars(table, calculation, opinion); })) {
    return empty();
  }
  return table;
}

std::string SectionName(const SectionRec& section) {
  const SectionLayout* layout = FindSectionLayout(section.Layout);
  const std::string name = section.Profile.Name.Trimmed();
  return layout != nullptr && layout->Paired ? "2 " + name : name;
}

}  // namespace trelonit
