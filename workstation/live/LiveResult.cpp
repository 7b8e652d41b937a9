#include "workstation/live/LiveResult.h"

#include <algorithm>
#include <array>
#include <utility>

#include "analysis/Scheme.h"
#include "analysis/modMaxProgib.h"
#include "checks/ElementGroups.h"
#include "platform/errors/Guard.h"
#include "workstation/design/Calculation.h"
#include "workstation/design/EnteredDesign.h"
#include "workstation/design/SecondOpinion.h"
#include "workstation/live/GeometryFaults.h"

namespace trelonit {

namespace {

constexpr int useDecimals = 3;
constexpr int massDecimals = 3;
constexpr int deflectionDecimals = 1;
constexpr double millimetresPerMetre = 1000;

/// A coefficient with the words for its check.
struct RulingCheck {
  double Value = 0;
  std::string Name;
};

RulingCheck RulingTold(const GroupCheck& check) {
  RulingCheck ruling;
  const auto take = [&](double value, const char* name) {
    if (ruling.Name.empty() || value > ruling.Value) {
      ruling = {value, name};
    }
  };
  for (const MemberCheckRow& row : memberChecks) {
    take(check.*row.Told, row.Name);
  }
  take(std::max(check.KUserX, check.KUserY), "гибкость по пределу пользователя");
  return ruling;
}

RulingCheck RulingOpinion(const GroupJudgement& group) {
  RulingCheck ruling;
  for (const MemberCheckRow& row : memberChecks) {
    if (ruling.Name.empty() || group.Figure(row.Check) > ruling.Value) {
      ruling = {group.Figure(row.Check), row.Name};
    }
  }
  return ruling;
}

/// The first number that no calculation can do with; empty where there is none.
std::string RefusedNumber(const DesignInputs& inputs) {
  const std::array<std::pair<double, const char*>, 6> numbers{{
      {inputs.Ry, "Расчетное сопротивление Ry"},
      {inputs.ModulYung, "Модуль упругости стали"},
      {inputs.UsloviyaRabot, "Коэффициент условий работы"},
      {inputs.Nadegnost, "Коэффициент надежности"},
      {inputs.Density, "Плотность стали"},
      {inputs.LimitFlex, "Предельная гибкость пользователя"},
  }};
  const auto refused = std::find_if(numbers.begin(), numbers.end(),
                                    [](const auto& number) { return !(number.first > 0); });
  return refused == numbers.end() ? "" : std::string(refused->second) + ": нужно число больше нуля";
}

/// Why these inputs have no result; empty where they may have one.
std::string RefusalOf(const DesignInputs& inputs, const NumberLocale& locale) {
  const Scheme* scheme = FindScheme(inputs.TreloType);
  if (scheme == nullptr || scheme->Reserved) {
    return "Схема " + std::to_string(inputs.TreloType) + " не рассчитывается";
  }
  const std::vector<GeometryFault> faults = FindGeometryFaults(inputs, locale);
  if (!faults.empty() && faults.front().Grade == Severity::Danger) {
    return faults.front().Text;
  }
  return RefusedNumber(inputs);
}

class LiveForming {
 public:
  LiveForming(const DesignInputs& inputs, const OwnWeightState& ownWeight,
              const NumberLocale& locale)
      : inputs_(inputs), locale_(locale) {
    const CheckNumbers numbers = CheckNumbersOf(inputs);
    Design design = DesignOf(inputs, ownWeight);
    calculation_ = inputs.OwnWeightOn != 0 ? CalculateWithOwnWeight(std::move(design), numbers)
                                           : Calculate(std::move(design), numbers).Value;
  }

  LiveResult Form() {
    LiveResult result;
    if (calculation_.TreloResult.KnotNum == 0 || !(calculation_.CheckData.Mass > 0)) {
      return result;
    }
    opinion_ = FormOpinion(Judged(calculation_));
    for (const GroupUse& use : BuildUse(calculation_)) {
      result.Groups.push_back(Group(use));
    }
    result.Figures = {Mass(), Deflection()};
    return result;
  }

 private:
  std::string Shown(double value) const { return FormatShown(value, useDecimals, locale_); }

  LiveGroup Group(const GroupUse& use) const {
    LiveGroup group{.Group = use.Group, .Told = use.Value, .Value = Shown(use.Value)};
    const ElementGroup of = GroupOfOption(use.Group);
    group.Hint = GroupName(use.Group) + "\nРасчет: " + group.Value + ", " +
                 RulingTold(calculation_.CheckData.*RowOf(of).Block).Name;
    if (const GroupJudgement* judgement = opinion_.FindGroup(of)) {
      const RulingCheck ruling = RulingOpinion(*judgement);
      group.Opinion = ruling.Value;
      group.Hint += "\nСНиП: " + Shown(ruling.Value) + ", " + ruling.Name;
    } else {
      group.Hint += "\nСНиП: " + opinion_.Refusal;
    }
    return group;
  }

  LiveFigure Mass() const {
    return {.Caption = "Масса",
            .Value = FormatShown(calculation_.CheckData.Mass, massDecimals, locale_) + " т",
            .Hint = "Теоретическая масса фермы"};
  }

  LiveFigure Deflection() const {
    const double progib =
        CalcProgib(calculation_.TreloData, calculation_.TreloResult, calculation_.CheckData,
                   inputs_.ProgibUpper != 0, inputs_.ModulYung)
            .Value;
    const auto millimetres = [this](double metres) {
      return FormatShown(metres * millimetresPerMetre, deflectionDecimals, locale_);
    };
    const std::string chord = inputs_.ProgibUpper != 0 ? "верхнему" : "нижнему";
    LiveFigure figure{.Caption = "Прогиб",
                      .Value = millimetres(progib) + " мм",
                      .Hint = "Наибольший прогиб по " + chord + " поясу"};
    std::optional<ProgibResult> judged;
    if (inputs_.ProgibOn != 0) {
      // A limit that is no number is none.
      PassOver([&] {
        judged = JudgeProgib(progib, calculation_.TreloData.LengthF, inputs_.LenLim, locale_);
      });
    }
    if (judged) {
      figure.Fails = !judged->Satisfied;
      figure.Value = millimetres(progib) + " из " + millimetres(judged->Limit) + " мм";
      figure.Hint += ", предел " + inputs_.LenLim + " пролета";
    } else {
      figure.Hint += "; предел не задан";
    }
    return figure;
  }

  const DesignInputs& inputs_;
  const NumberLocale& locale_;
  Calculation calculation_;
  Opinion opinion_;
};

}  // namespace

std::string LiveResult::InWords() const {
  if (HasRefused()) {
    return Refusal;
  }
  std::string words;
  for (const LiveGroup& group : Groups) {
    words += group.Hint + "\n";
  }
  for (const LiveFigure& figure : Figures) {
    words += figure.Caption + ": " + figure.Value + "\n";
  }
  return words;
}

LiveResult FormLiveResult(const DesignInputs& inputs, const OwnWeightState& ownWeight,
                          const NumberLocale& locale) {
  LiveResult result{.Refusal = RefusalOf(inputs, locale)};
  if (result.HasRefused()) {
    return result;
  }
  const bool whole = PassOver([&] { result = LiveForming(inputs, ownWeight, locale).Form(); }) &&
                     !result.Groups.empty();
  return whole ? result : LiveResult{.Refusal = "С этими данными расчет не удается"};
}

}  // namespace trelonit
