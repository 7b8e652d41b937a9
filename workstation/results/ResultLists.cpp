#include "workstation/results/ResultLists.h"

#include <algorithm>

#include "analysis/Scheme.h"
#include "checks/ElementGroups.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

constexpr int forceDecimals = 4;
constexpr int coefficientDecimals = 5;

bool ShowsVerticals(const Calculation& calculation) {
  const Scheme* scheme = FindScheme(calculation.TreloData.TreloType);
  return scheme != nullptr && scheme->ShowsVerticals();
}

class ForceList {
 public:
  explicit ForceList(const NumberLocale& locale) : locale_(locale) {}

  void Line(std::string text) { lines_.push_back(std::move(text)); }

  void Bar(Long number, double force) {
    Line(" Усилие в " + std::to_string(number) + "-ом стержне  " + Number(force) + " тонн");
  }

  void Tonnes(double value) { Line(Number(value) + " тонн"); }

  /// One line per bar from first to last, numbered from 1.
  void Bars(const BoundedArray<double>& forces, Long first, Long last) {
    for (Long bar = first; bar <= last; ++bar) {
      Bar(bar - first + 1, forces[bar]);
    }
  }

  void AllBars(const BoundedArray<double>& forces) {
    Bars(forces, forces.LowerBound(), forces.UpperBound());
  }

  std::vector<std::string> Take() { return std::move(lines_); }

 private:
  std::string Number(double value) const { return FormatShown(value, forceDecimals, locale_); }

  const NumberLocale& locale_;
  std::vector<std::string> lines_;
};

/// A row of the utilisation grid; the head of a group has neither checks nor a coefficient.
struct UtilisationRow {
  std::string Text;
  std::optional<double> Coefficient;
  ElementGroup Group = ElementGroup::UpPoyas;
  std::vector<std::string> Checks;
};

/// A group with its texts: the head, and its words in the captions of the rows.
struct GroupTexts {
  ElementGroup Group;
  std::string Header;
  std::string Words;
};

void AddGroup(std::vector<UtilisationRow>& rows, const GroupTexts& group,
              const CheckResult& result) {
  const GroupCheck& check = result.*RowOf(group.Group).Block;
  const auto add = [&](std::string text, std::optional<double> coefficient,
                       std::vector<std::string> checks) {
    rows.push_back({std::move(text), coefficient, group.Group, std::move(checks)});
  };
  add(group.Header, std::nullopt, {});
  if (check.KStrength > 0) {
    add("Прочность " + group.Words, check.KStrength, {"Strength"});
  }
  if (check.KStabX > 0) {
    add("Устойчивость " + group.Words + " в плоскости фермы", check.KStabX, {"StabX"});
  }
  if (check.KStabY > 0) {
    add("Устойчивость " + group.Words + " из плоскости фермы", check.KStabY, {"StabY"});
  }
  add("Гибкость " + group.Words + " ", std::max(check.KFlexX, check.KFlexY), {"FlexX", "FlexY"});
  add("Гибкость " + group.Words + " по предельной гибкости, заданной пользователем",
      std::max(check.KUserX, check.KUserY), {"UserX", "UserY"});
}

std::vector<UtilisationRow> UtilisationRows(const Calculation& calculation) {
  const CheckResult& check = calculation.CheckData;
  std::vector<UtilisationRow> rows;
  AddGroup(rows, {ElementGroup::UpPoyas, "*** Верхний пояс", "верхнего пояса"}, check);
  AddGroup(rows, {ElementGroup::DwnPoyas, "*** Нижний пояс", "нижнего пояса"}, check);
  AddGroup(rows, {ElementGroup::Raskos, "*** Раскосы", "раскосов"}, check);
  // A Latin p in this header and a Latin C in the next are the established texts.
  AddGroup(rows, {ElementGroup::OpornRaskos, "*** Опорные pаскосы", "опорных раскосов"}, check);
  if (ShowsVerticals(calculation)) {
    AddGroup(rows, {ElementGroup::Stoyka, "*** Cтойки", "стоек"}, check);
  }
  return rows;
}

}  // namespace

std::vector<std::string> BuildForceList(const Calculation& calculation,
                                        const NumberLocale& locale) {
  const TreloResult& result = calculation.TreloResult;
  const double mass = calculation.CheckData.Mass;
  ForceList list(locale);
  list.Line(" Усилия в стержнях фермы даны с лева на право");
  list.Line(" ");
  list.Line(" Верхний пояс :");
  list.AllBars(result.UpPoyasForce);
  list.Line(" ");
  list.Line(" Нижний пояс :");
  list.AllBars(result.DwnPoyasForce);
  list.Line(" ");
  list.Line(" Раскосы :");
  const BoundedArray<double>& diagonals = result.RaskosForce;
  list.Bars(diagonals, diagonals.LowerBound() + 1, diagonals.UpperBound() - 1);
  list.Line(" ");
  list.Line(" Опорные раскосы :");
  list.Bar(1, diagonals[diagonals.LowerBound()]);
  list.Bar(2, diagonals[diagonals.UpperBound()]);
  if (ShowsVerticals(calculation)) {
    list.Line(" ");
    list.Line(" Стойки :");
    list.AllBars(result.StoykaForce);
  }
  list.Line(" ");
  // The wording stays even when own weight is among the loads and so in these reactions.
  list.Line(" Реакции опор без учета собственной массы фермы:");
  list.Tonnes(result.ReactLeft);
  list.Tonnes(result.ReactRight);
  list.Line(" ");
  list.Line(" Теоретическая масса фермы:");
  list.Tonnes(mass);
  list.Line(" ");
  // Intended: half the mass is added here whether or not own weight is among the loads already.
  // The "c" is a Latin letter.
  list.Line(" Реакции опор c учетом собственной массы фермы:");
  list.Tonnes(Real(result.ReactLeft) + Real(mass) / 2);
  list.Tonnes(Real(result.ReactRight) + Real(mass) / 2);
  list.Line(" ");
  return list.Take();
}

std::vector<Grid::Row> BuildUtilisationGrid(const Calculation& calculation,
                                            const NumberLocale& locale) {
  std::vector<Grid::Row> grid;
  for (UtilisationRow& row : UtilisationRows(calculation)) {
    grid.push_back({std::move(row.Text),
                    row.Coefficient ? FormatShown(*row.Coefficient, coefficientDecimals, locale)
                                    : std::string("***")});
  }
  return grid;
}

std::vector<ResultRow> BuildResultRows(const Calculation& calculation, const Opinion& opinion,
                                       const NumberLocale& locale) {
  std::vector<ResultRow> results;
  for (UtilisationRow& row : UtilisationRows(calculation)) {
    ResultRow result{.Group = row.Group, .Checks = std::move(row.Checks)};
    const GroupJudgement* group = opinion.FindGroup(row.Group);
    std::optional<double> greatest;
    for (const MemberCheckRow& member : memberChecks) {
      const bool shown =
          group != nullptr && group->GoverningBar(member.Check) &&
          std::find(result.Checks.begin(), result.Checks.end(), member.Key) != result.Checks.end();
      if (shown && (!greatest || group->Figure(member.Check) > *greatest)) {
        greatest = group->Figure(member.Check);
        result.Bar = opinion.Model.Bars[*group->GoverningBar(member.Check)].Number;
      }
    }
    if (greatest) {
      result.Opinion = FormatShown(*greatest, coefficientDecimals, locale);
      result.OpinionFails = *greatest > 1;
    }
    results.push_back(std::move(result));
  }
  return results;
}

std::vector<bool> RowsOverLimit(const Calculation& calculation) {
  std::vector<bool> over;
  for (const UtilisationRow& row : UtilisationRows(calculation)) {
    over.push_back(row.Coefficient > 1);
  }
  return over;
}

std::vector<std::string> ProgibLines(const ProgibResult& progib, const NumberLocale& locale) {
  const std::string value = FormatShown(progib.Value, coefficientDecimals, locale) + " м ";
  const std::string limit = FormatShown(progib.Limit, coefficientDecimals, locale) + " м ";
  if (progib.Satisfied) {
    return {" ", "Максимальный прогиб : " + value, "Допустимый прогиб фермы : " + limit};
  }
  return {" ", "Не выполнено условие жесткости !!! ", "Максимальный прогиб фермы : " + value,
          "Допустимый прогиб фермы : " + limit};
}

}  // namespace trelonit
