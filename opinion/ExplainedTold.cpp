#include <cmath>
#include <string>

#include "checks/ElementGroups.h"
#include "opinion/Buckling.h"
#include "opinion/ExplanationBuilder.h"
#include "opinion/NormTexts.h"
#include "platform/errors/Guard.h"

namespace trelonit {

namespace {

/// The fields of a group's block that belong to one plane.
struct Plane {
  const char* Suffix;  ///< of the check's key
  const char* Name;
  double GroupCheck::*Length;
  double GroupCheck::*Inertia;
  double GroupCheck::*Flex;
  double GroupCheck::*FlexBar;
  double GroupCheck::*Phi;
  double GroupCheck::*Alpha;
  LimitFlex GroupCheck::*Limit;
  double GroupCheck::*Stability;
  double GroupCheck::*FlexUse;
  double GroupCheck::*UserUse;
};

constexpr Plane planeX{"X",
                       "в плоскости фермы",
                       &GroupCheck::LenX,
                       &GroupCheck::Jin,
                       &GroupCheck::FlexX,
                       &GroupCheck::FlexBarX,
                       &GroupCheck::PhiX,
                       &GroupCheck::AlphaX,
                       &GroupCheck::LimitX,
                       &GroupCheck::KStabX,
                       &GroupCheck::KFlexX,
                       &GroupCheck::KUserX};
constexpr Plane planeY{"Y",
                       "из плоскости фермы",
                       &GroupCheck::LenY,
                       &GroupCheck::Jout,
                       &GroupCheck::FlexY,
                       &GroupCheck::FlexBarY,
                       &GroupCheck::PhiY,
                       &GroupCheck::AlphaY,
                       &GroupCheck::LimitY,
                       &GroupCheck::KStabY,
                       &GroupCheck::KFlexY,
                       &GroupCheck::KUserY};

/// Explains the figures of one group of the check record.
class ToldExplainer {
 public:
  ToldExplainer(const JudgedDesign& design, const ElementGroupRow& row)
      : design_(design),
        row_(row),
        check_(design.Check.*row.Block),
        compressed_(check_.NComp.Value < 0) {}

  Explanation Strength() const {
    ExplanationBuilder builder = Begin("Strength", RowOf(MemberCheck::Strength).Name);
    PutForce(builder, check_.NMax);
    PutResistance(builder);
    return builder.Finish(clauseStrength, formulaStrength, check_.KStrength);
  }

  bool HasStability() const { return compressed_; }

  Explanation Stability(const Plane& plane) const {
    ExplanationBuilder builder =
        Begin(std::string("Stab") + plane.Suffix, std::string("устойчивость ") + plane.Name);
    PutForce(builder, check_.NComp);
    PutResistance(builder);
    PutSlenderness(builder, plane);
    PutPhi(builder, plane);
    return builder.Finish(clauseStability, formulaStability, check_.*plane.Stability);
  }

  Explanation Flex(const Plane& plane) const {
    ExplanationBuilder builder =
        Begin(std::string("Flex") + plane.Suffix, std::string("гибкость ") + plane.Name);
    builder.Given("A", check_.Area, "см²");
    PutSlenderness(builder, plane);
    if (compressed_) {
      PutCompressionLimit(builder, plane);
    } else {
      builder.Given(
          "λu", (check_.*plane.Limit).Tension, {},
          design_.Numbers.Dynamic ? "при динамических нагрузках" : "при статических нагрузках");
      if (design_.Numbers.Dynamic && !IsChordOrSupportDiagonal()) {
        builder.OwnRule("Предел 250 взят для всех групп: по табл. 20* для этих стержней 350.");
      }
    }
    return builder.Finish(compressed_ ? clauseFlexCompressed : clauseFlexTension, formulaFlex,
                          check_.*plane.FlexUse);
  }

  Explanation User(const Plane& plane) const {
    ExplanationBuilder builder =
        Begin(std::string("User") + plane.Suffix,
              std::string("гибкость по заданной предельной, ") + plane.Name);
    builder.Given("A", check_.Area, "см²");
    PutSlenderness(builder, plane);
    builder.Given("λu", design_.Numbers.LimitUser, {}, "задана пользователем");
    builder.OwnRule("Предельную гибкость задает пользователь; нормы такой проверки не знают.");
    return builder.Finish("правило программы", formulaFlex, check_.*plane.UserUse);
  }

 private:
  ExplanationBuilder Begin(const std::string& key, const std::string& name) const {
    return ExplanationBuilder(
        {.Group = row_.Group, .Check = key, .CheckName = name, .Source = ExplanationSource::Told});
  }

  bool IsChord() const {
    return row_.Group == ElementGroup::UpPoyas || row_.Group == ElementGroup::DwnPoyas;
  }
  bool IsChordOrSupportDiagonal() const {
    return IsChord() || row_.Group == ElementGroup::OpornRaskos;
  }

  /// Whether this chord has end panels, and of another length than the others.
  bool HasTwoPanelLengths() const {
    const Scheme& scheme = *FindScheme(design_.Data.TreloType);
    const bool hasEndPanels =
        !scheme.Reserved && scheme.OwnEndPanels &&
        (row_.Group == ElementGroup::UpPoyas || scheme.LowerHalfColumn(0) == 0);
    constexpr double rounding = 1e-9;
    const double regular = design_.Result.LenPanel;
    return hasEndPanels && std::abs(design_.Data.LenOporn - regular) > rounding * regular;
  }

  void PutForce(ExplanationBuilder& builder, const ForceExtreme& force) const {
    const std::string bar = std::to_string(force.Index);
    if (row_.Group == ElementGroup::OpornRaskos) {
      builder.Given("N", std::abs(force.Value), "т", "раскос " + bar + " из всех раскосов слева");
      builder.OwnRule("Опорные раскосы проверены на наибольшее усилие среди всех раскосов фермы.");
    } else {
      builder.Given("N", std::abs(force.Value), "т", "стержень " + bar);
    }
  }

  void PutResistance(ExplanationBuilder& builder) const {
    builder.Given("A", check_.Area, "см²");
    builder.Given("Ry", design_.Numbers.Ry, "МПа");
    builder.Given("γc", design_.Numbers.Yc);
    builder.Given("γn", design_.Numbers.Gn);
  }

  void PutSlenderness(ExplanationBuilder& builder, const Plane& plane) const {
    builder.Given("lef", check_.*plane.Length, "м");
    builder.Given("J", check_.*plane.Inertia, "см⁴");
    builder.Step("λ", formulaSlenderness, check_.*plane.Flex);
    if (!IsChord()) {
      if (&plane == &planeX && row_.Group != ElementGroup::OpornRaskos) {
        builder.OwnRule("Длина элемента решетки взята полной; по табл. 11 в плоскости фермы 0,8.");
      }
    } else if (&plane == &planeY) {
      builder.OwnRule("Расчетная длина из плоскости взята по таблице программы для варианта «" +
                      BracingCaption(row_.Group == ElementGroup::UpPoyas
                                         ? design_.Data.UpPoyasBrace
                                         : design_.Data.DownPoyasBrace) +
                      "», а не по расстоянию между закрепленными точками.");
    } else if (HasTwoPanelLengths()) {
      builder.OwnRule(
          "Расчетная длина в плоскости взята по панели стержня с наибольшим усилием, одна на весь "
          "пояс.");
    }
  }

  void PutPhi(ExplanationBuilder& builder, const Plane& plane) const {
    builder.Given("E", design_.Numbers.E, "МПа");
    builder.Step("λ̄", formulaConditional, check_.*plane.FlexBar);
    // At the very bounds of the formulas the calculation has no φ, and so nothing to explain.
    const int formula =
        BucklingCoefficient(check_.*plane.FlexBar, design_.Numbers.Ry, design_.Numbers.E).Formula;
    const PhiText text = TextOfPhi(formula);
    builder.Step("φ", text.Formula, check_.*plane.Phi, {}, text.Clause);
    if (formula == 0) {
      builder.OwnRule(ownRuleOfPhi);
    }
  }

  void PutCompressionLimit(ExplanationBuilder& builder, const Plane& plane) const {
    constexpr double longest = 50;
    const bool singleAngle = design_.Sections[row_.Place].Layout == 1;
    const double limit = (check_.*plane.Limit).Compress;
    if (!singleAngle && check_.*plane.Length > longest) {
      builder.Given("λu", limit);
      builder.OwnRule("При расчетной длине больше 50 м взят предел 120.");
      return;
    }
    builder.Given("α", check_.*plane.Alpha, {},
                  "доля использования устойчивости в этой плоскости, не более 1");
    builder.Step("λu", singleAngle ? "210-60*α" : "180-60*α", limit);
    builder.OwnRule(
        "α взят без γn и без нижней границы 0,5; формула предела выбрана по компоновке сечения "
        "(одиночный уголок или нет), а не по назначению стержня.");
  }

  const JudgedDesign& design_;
  const ElementGroupRow& row_;
  const GroupCheck& check_;
  bool compressed_;
};

Explanation ExplainDeflection(const JudgedDesign& design, const ToldDeflection& deflection) {
  ExplanationBuilder builder({.Check = "Progib", .CheckName = "прогиб"});
  builder.Given("f", deflection.Value, "м");
  builder.Given("fu", deflection.Limit, "м", "предел выбран пользователем");
  if (design.Data.TreloType == 4) {
    builder.OwnRule("Стержни нижнего пояса этой схемы входят в прогиб половиной длины.");
  }
  return builder.Finish("СНиП 2.01.07-85*, раздел 10", "f/fu", deflection.Value / deflection.Limit);
}

}  // namespace

// A record of figures that its own formulas do not give (it may be empty) stays unexplained.

std::vector<Explanation> ExplainToldGroup(const JudgedDesign& design, ElementGroup group) {
  std::vector<Explanation> explanations;
  const ElementGroupRow& row = RowOf(group);
  const Scheme* scheme = FindScheme(design.Data.TreloType);
  const bool exists = scheme != nullptr && (group != ElementGroup::Stoyka || scheme->HasVerticals);
  if (!exists) {
    return explanations;
  }
  const auto add = [&](auto&& explain) { PassOver([&] { explanations.push_back(explain()); }); };
  const ToldExplainer explainer(design, row);
  add([&] { return explainer.Strength(); });
  if (explainer.HasStability()) {
    add([&] { return explainer.Stability(planeX); });
    add([&] { return explainer.Stability(planeY); });
  }
  add([&] { return explainer.Flex(planeX); });
  add([&] { return explainer.Flex(planeY); });
  add([&] { return explainer.User(planeX); });
  add([&] { return explainer.User(planeY); });
  return explanations;
}

std::vector<Explanation> ExplainToldTruss(const JudgedDesign& design,
                                          const std::optional<ToldDeflection>& deflection) {
  std::vector<Explanation> explanations;
  if (deflection && deflection->Limit > 0) {
    PassOver([&] { explanations.push_back(ExplainDeflection(design, *deflection)); });
  }
  return explanations;
}

std::vector<Explanation> ExplainTold(const JudgedDesign& design,
                                     const std::optional<ToldDeflection>& deflection) {
  std::vector<Explanation> explanations;
  for (const ElementGroupRow& row : elementGroups) {
    AppendTo(explanations, ExplainToldGroup(design, row.Group));
  }
  AppendTo(explanations, ExplainToldTruss(design, deflection));
  return explanations;
}

}  // namespace trelonit
