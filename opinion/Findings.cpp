#include "opinion/Findings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "catalogue/SectionProvenance.h"
#include "checks/ElementGroups.h"
#include "opinion/NormTexts.h"
#include "platform/values/Elementary.h"

namespace trelonit {

namespace {

/// Lengths that differ by less than this share are equal: they are sums of the same panels.
constexpr double rounding = 1e-9;

std::string ListOf(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) {
    text += (text.empty() ? "" : ", ") + name;
  }
  return text;
}

const char* Verdict(double figure) {
  return figure <= 1 ? "проходит" : "не проходит";
}

/// Gathers the findings of one design.
class Search {
 public:
  Search(const JudgedDesign& design, const Opinion& opinion, const Circumstances& circumstances,
         const NumberLocale& locale)
      : design_(design),
        opinion_(opinion),
        circumstances_(circumstances),
        locale_(locale),
        smallest_(opinion.SmallestForce()) {}

  std::vector<Finding> Run() {
    FindDifferingChecks();
    FindBracingLengths();
    FindImbalance();
    FindDifferingLoads();
    FindDoubledOwnWeight();
    FindChordBending();
    std::vector<Finding> sections =
        FindInSections(design_.Sections, *FindScheme(design_.Data.TreloType));
    std::move(sections.begin(), sections.end(), std::back_inserter(found_));
    FindPhiGaps();
    FindOpenSelection();
    std::stable_sort(found_.begin(), found_.end(),
                     [](const Finding& a, const Finding& b) { return a.Grade < b.Grade; });
    return std::move(found_);
  }

 private:
  std::string Shown(double value, int decimals) const {
    return FormatShown(value, decimals, locale_);
  }
  /// A utilisation; next to 1 with the decimals that show which side of it.
  std::string Use(double value) const {
    constexpr int most = 12;
    int decimals = 3;
    const bool close = value > 1 && value < 1.001;
    while (close && decimals < most && RoundToDecimals(value, decimals) <= 1) {
      ++decimals;
    }
    return Shown(value, decimals);
  }
  std::string Metres(double value) const { return Shown(value, 3) + " м"; }
  /// Small differences keep their first digits.
  std::string Tonnes(double value) const {
    return (std::abs(value) < 0.001 ? NumberToText(RoundToDecimals(value, 12), locale_)
                                    : Shown(value, 3)) +
           " т";
  }

  std::string GoverningBar(const GroupJudgement& group, MemberCheck check) const {
    const std::optional<std::size_t>& place = group.GoverningBar(check);
    if (!place) {
      return {};
    }
    const BarJudgement& bar = opinion_.Bars[*place];
    std::string text = ": стержень " + std::to_string(opinion_.Model.Bars[*place].Number) +
                       ", усилие " + Shown(bar.Force, 2) + " т";
    if (const PlaneJudgement* plane = bar.PlaneOf(check)) {
      text += ", расчетная длина " + Metres(plane->Length);
    }
    return text;
  }

  void FindDifferingChecks() {
    for (const GroupJudgement& group : opinion_.Groups) {
      const ElementGroupRow& row = RowOf(group.Group);
      for (const MemberCheckRow& check : memberChecks) {
        const double told = design_.Check.*row.Block.*check.Told;
        const double judged = group.Figure(check.Check);
        if ((told <= 1) == (judged <= 1)) {
          continue;
        }
        const std::optional<std::size_t>& place = group.GoverningBar(check.Check);
        found_.push_back(
            {.Code = FindingCode::CheckDiffers,
             .Grade = told <= 1 ? Severity::Danger : Severity::Note,
             .Text = std::string(row.Name) + ", " + check.Name + ": в расчете " + Use(told) + ", " +
                     Verdict(told) + "; по СНиП " + Use(judged) + ", " + Verdict(judged) +
                     GoverningBar(group, check.Check) + ".",
             .Group = group.Group,
             .Check = check.Check,
             .Bar = place ? std::optional(opinion_.Model.Bars[*place].Number) : std::nullopt,
             .Told = told,
             .Opinion = judged});
      }
    }
  }

  void FindBracingLength(ElementGroup group, const GroupCheck& check, Long bracing, double held) {
    // Both come from the same panel lengths, by other sums.
    if (std::abs(check.LenY - held) <= rounding * held) {
      return;
    }
    const bool unsafe = check.LenY < held;
    found_.push_back({.Code = FindingCode::BracingLength,
                      .Grade = unsafe ? Severity::Warning : Severity::Note,
                      .Text = std::string(RowOf(group).Name) + " закреплен «" +
                              BracingCaption(bracing) +
                              "»: из плоскости фермы расчет берет длину " + Metres(check.LenY) +
                              ", а по смыслу подписи она " + Metres(held) +
                              (unsafe ? ". Это не в запас." : ". Это в запас."),
                      .Group = group,
                      .Check = MemberCheck::StabY,
                      .Told = check.LenY,
                      .Opinion = held});
  }

  void FindBracingLengths() {
    FindBracingLength(ElementGroup::UpPoyas, design_.Check.UpPoyas, design_.Data.UpPoyasBrace,
                      opinion_.UpperHeld);
    FindBracingLength(ElementGroup::DwnPoyas, design_.Check.DwnPoyas, design_.Data.DownPoyasBrace,
                      opinion_.LowerHeld);
  }

  void FindImbalance() {
    std::vector<std::string> joints;
    std::vector<std::string> leftOut;
    for (const std::size_t place : opinion_.UnbalancedJoints()) {
      const Residual& residual = opinion_.ToldResiduals[place];
      joints.push_back(JointName(opinion_.Model.Joints[place]));
      const double load = opinion_.Told.Loads[place];
      // In equilibrium but for its load: the load was not taken to the bars.
      if (portable::Hypotenuse(residual.Right, residual.Up + load) <= smallest_) {
        leftOut.push_back(joints.back());
      }
    }
    if (joints.empty()) {
      return;
    }
    const double greatest = opinion_.GreatestResidual();
    std::string text = "Узлы не в равновесии под усилиями расчета: " + ListOf(joints) +
                       "; наибольшая невязка " + Tonnes(greatest) + ".";
    if (!leftOut.empty()) {
      text += " Нагрузка узлов " + ListOf(leftOut) + " в усилия стержней не вошла.";
    }
    found_.push_back({.Code = FindingCode::NotBalanced,
                      .Grade = Severity::Warning,
                      .Text = std::move(text),
                      .Told = greatest,
                      .Opinion = 0});
  }

  void FindDifferingLoads() {
    std::vector<std::string> joints;
    double greatest = 0;
    for (std::size_t place = 0; place < opinion_.Model.Joints.size(); ++place) {
      const TrussJoint& joint = opinion_.Model.Joints[place];
      const TreloResult& result = design_.Result;
      const double told =
          (joint.Of == Chord::Upper ? result.UpKnotLoad : result.DwnKnotLoad)[joint.Index];
      const double difference = told - opinion_.Forces.Loads[place];
      if (std::abs(difference) > smallest_) {
        joints.push_back(JointName(joint) + " (" + (difference > 0 ? "+" : "") +
                         Tonnes(difference) + ")");
        greatest = std::abs(difference) > std::abs(greatest) ? difference : greatest;
      }
    }
    if (!joints.empty()) {
      found_.push_back(
          {.Code = FindingCode::LoadDiffers,
           .Grade = Severity::Warning,
           .Text = "Расчет собрал в узлы не ту нагрузку, которая задана: " + ListOf(joints) + ".",
           .Told = greatest,
           .Opinion = 0});
    }
  }

  void FindDoubledOwnWeight() {
    if (const std::optional<double> inside = circumstances_.DoubledOwnWeight) {
      found_.push_back({.Code = FindingCode::OwnWeightTwice,
                        .Grade = Severity::Warning,
                        .Text = DoubledOwnWeightText(*inside, locale_),
                        .Told = *inside,
                        .Opinion = 0});
    }
  }

  void FindChordBending() {
    const auto loaded = [](const BoundedArray<double>& panels) {
      return std::any_of(panels.begin(), panels.end(), [](double load) { return load != 0; });
    };
    const auto find = [&](ElementGroup group, const BoundedArray<double>& panels) {
      if (loaded(panels)) {
        found_.push_back({.Code = FindingCode::ChordBending,
                          .Grade = Severity::Note,
                          .Text = std::string(RowOf(group).Name) +
                                  " несет распределенную нагрузку: изгиб его стержней между узлами "
                                  "не проверяется ни расчетом, ни вторым мнением.",
                          .Group = group});
      }
    };
    find(ElementGroup::UpPoyas, design_.Data.UpDistForce);
    find(ElementGroup::DwnPoyas, design_.Data.DwnDistForce);
  }

  void FindPhiGaps() {
    for (const GroupJudgement& group : opinion_.Groups) {
      const ElementGroupRow& row = RowOf(group.Group);
      const GroupCheck& check = design_.Check.*row.Block;
      FindPhiGap(row, check.FlexBarX, check.PhiX, MemberCheck::FlexX);
      FindPhiGap(row, check.FlexBarY, check.PhiY, MemberCheck::FlexY);
    }
  }

  void FindPhiGap(const ElementGroupRow& row, double flexBar, double phi, MemberCheck check) {
    const bool boundary = flexBar == 2.5 || flexBar == 4.5;
    if (boundary && phi == 0) {
      found_.push_back({.Code = FindingCode::PhiGap,
                        .Grade = Severity::Warning,
                        .Text = std::string(row.Name) + ": условная гибкость ровно " +
                                NumberToText(flexBar, locale_) +
                                ", на границе формул φ; расчет берет там φ = 0, и предельная "
                                "гибкость считается без него.",
                        .Group = row.Group,
                        .Check = check,
                        .Told = 0,
                        .Opinion = std::nullopt});
    }
  }

  void FindOpenSelection() {
    for (const Circumstances::FailingGroup& failing : circumstances_.AfterSelection) {
      found_.push_back(
          {.Code = FindingCode::SelectionOpen,
           .Grade = Severity::Warning,
           .Text = std::string(RowOf(failing.Group).Name) +
                   ": с принятыми профилями и их собственным весом наибольший коэффициент " +
                   Use(failing.Use) + ". Повторите подбор.",
           .Group = failing.Group,
           .Told = failing.Use});
    }
  }

  const JudgedDesign& design_;
  const Opinion& opinion_;
  const Circumstances& circumstances_;
  const NumberLocale& locale_;
  double smallest_;
  std::vector<Finding> found_;
};

constexpr std::array<const char*, 9> codeKeys{
    "check-differs", "bracing-length", "not-balanced", "load-differs",  "own-weight-twice",
    "chord-bending", "section-data",   "phi-gap",      "selection-open"};
constexpr std::array<const char*, 3> severityKeys{"danger", "warning", "note"};

}  // namespace

const char* KeyOf(FindingCode code) {
  return codeKeys[static_cast<std::size_t>(code)];
}

const char* KeyOf(Severity severity) {
  return severityKeys[static_cast<std::size_t>(severity)];
}

std::string JointName(const TrussJoint& joint) {
  return (joint.Of == Chord::Upper ? "В" : "Н") + std::to_string(joint.Index);
}

std::string DoubledOwnWeightText(double perMetre, const NumberLocale& locale) {
  return "Собственный вес, похоже, уже есть в нагрузках проекта: на каждой панели обоих поясов "
         "по " +
         NumberToText(perMetre, locale) +
         " т/м. Расчет прибавляет его еще раз, пока включен учет собственного веса.";
}

std::string ProvenanceText(const ProfileRec& record) {
  const std::string size = record.Name.Trimmed() + ", " + record.Type.Trimmed() + ": ";
  switch (ProvenanceOf(record)) {
    case Provenance::Published:
      return {};
    case Provenance::Computed:
      return size + "моменты инерции вычислены по размерам, в таблице стандарта их нет.";
    case Provenance::Reconstructed:
      break;
  }
  return size +
         "типоразмер восстановлен по соседним рядам, его величины вычислены по "
         "размерам; в таблице стандарта его может не быть.";
}

std::vector<Finding> FindInSections(const SectionArray& sections, const Scheme& scheme) {
  std::vector<Finding> found;
  for (const ElementGroupRow& row : elementGroups) {
    if (row.Group == ElementGroup::Stoyka && !scheme.HasVerticals) {
      continue;
    }
    if (std::string text = ProvenanceText(sections[row.Place].Profile); !text.empty()) {
      found.push_back({.Code = FindingCode::SectionData,
                       .Grade = Severity::Note,
                       .Text = std::string(row.Name) + ", " + text,
                       .Group = row.Group});
    }
  }
  return found;
}

std::vector<Finding> FindAll(const JudgedDesign& design, const Opinion& opinion,
                             const Circumstances& circumstances, const NumberLocale& locale) {
  return opinion.HasRefused() ? std::vector<Finding>()
                              : Search(design, opinion, circumstances, locale).Run();
}

}  // namespace trelonit
