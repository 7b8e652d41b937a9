#include <optional>

#include "opinion/BarLengths.h"
#include "opinion/ExplanationBuilder.h"
#include "opinion/NormTexts.h"
#include "platform/errors/Guard.h"

namespace trelonit {

namespace {

bool IsChord(ElementGroup group) {
  return group == ElementGroup::UpPoyas || group == ElementGroup::DwnPoyas;
}

/// Explains the figures of one group, each by the bar that rules it.
class OpinionExplainer {
 public:
  OpinionExplainer(const JudgedDesign& design, const Opinion& opinion, const GroupJudgement& group)
      : design_(design), opinion_(opinion), group_(group) {}

  std::optional<Explanation> Explain(const MemberCheckRow& row) const {
    const std::optional<std::size_t>& place = group_.GoverningBar(row.Check);
    if (!place) {
      return std::nullopt;
    }
    const TrussBar& bar = opinion_.Model.Bars[*place];
    const BarJudgement& judged = opinion_.Bars[*place];
    ExplanationBuilder builder({.Group = group_.Group,
                                .Check = row.Key,
                                .CheckName = row.Name,
                                .Source = ExplanationSource::Opinion,
                                .Bar = bar.Number});
    const double figure = judged.Figure(row.Check);
    switch (row.Check) {
      case MemberCheck::Strength:
        PutForce(builder, judged);
        PutResistance(builder);
        return builder.Finish(clauseStrength, formulaStrength, figure);
      case MemberCheck::StabX:
      case MemberCheck::StabY:
        PutForce(builder, judged);
        PutResistance(builder);
        PutSlenderness(builder, row.Check, bar, judged);
        PutPhi(builder, *judged.PlaneOf(row.Check));
        return builder.Finish(clauseStability, formulaStability, figure);
      case MemberCheck::FlexX:
      case MemberCheck::FlexY:
        break;
    }
    return ExplainFlex(std::move(builder), row.Check, bar, judged);
  }

 private:
  static void PutForce(ExplanationBuilder& builder, const BarJudgement& judged) {
    builder.Given("N", std::abs(judged.Force), "т", judged.Force < 0 ? "сжатие" : "растяжение");
  }

  void PutResistance(ExplanationBuilder& builder) const {
    builder.Given("A", group_.Section.Area, "см²");
    builder.Given("Ry", design_.Numbers.Ry, "МПа");
    builder.Given("γc", design_.Numbers.Yc);
    builder.Given("γn", design_.Numbers.Gn);
  }

  void PutSlenderness(ExplanationBuilder& builder, MemberCheck check, const TrussBar& bar,
                      const BarJudgement& judged) const {
    const PlaneJudgement& plane = *judged.PlaneOf(check);
    const bool inPlane = &plane == &judged.X;
    builder.Given("lef", plane.Length, "м", LengthNote(bar, inPlane));
    builder.Given("J", inPlane ? group_.Section.Jin : group_.Section.Jout, "см⁴");
    if (check == MemberCheck::FlexX || check == MemberCheck::FlexY) {
      builder.Given("A", group_.Section.Area, "см²");
    }
    builder.Step("λ", formulaSlenderness, plane.Slenderness);
  }

  std::string LengthNote(const TrussBar& bar, bool inPlane) const {
    if (!IsChord(bar.Group)) {
      const bool reduced = inPlane && !IsSupportBar(opinion_.Model, bar);
      return reduced ? "0,8 длины элемента решетки, п. 6.1, табл. 11"
                     : "длина элемента, п. 6.1, табл. 11";
    }
    if (inPlane) {
      return "длина панели, п. 6.1, табл. 11";
    }
    return "между закрепленными точками («" +
           BracingCaption(bar.Group == ElementGroup::UpPoyas ? design_.Data.UpPoyasBrace
                                                             : design_.Data.DownPoyasBrace) +
           "»), п. 6.1, табл. 11";
  }

  void PutPhi(ExplanationBuilder& builder, const PlaneJudgement& plane) const {
    builder.Given("E", design_.Numbers.E, "МПа");
    builder.Step("λ̄", formulaConditional, plane.FlexBar);
    const PhiText text = TextOfPhi(plane.PhiFormula);
    builder.Step("φ", text.Formula, plane.Phi, {}, text.Clause);
    if (plane.PhiFormula == 0) {
      builder.OwnRule(ownRuleOfPhi);
    }
  }

  Explanation ExplainFlex(ExplanationBuilder builder, MemberCheck check, const TrussBar& bar,
                          const BarJudgement& judged) const {
    const PlaneJudgement& plane = *judged.PlaneOf(check);
    PutSlenderness(builder, check, bar, judged);
    if (judged.Compressed) {
      builder.Given("α", plane.Alpha, {},
                    "коэффициент устойчивости в этой плоскости, не менее 0,5 и не более 1");
      const bool asChord = IsChord(bar.Group) || IsSupportBar(opinion_.Model, bar);
      builder.Step("λu", asChord ? "180-60*α" : "210-60*α", plane.Limit);
    } else {
      builder.Given(
          "λu", plane.Limit, {},
          design_.Numbers.Dynamic ? "при динамических нагрузках" : "при статических нагрузках");
    }
    return builder.Finish(judged.Compressed ? clauseFlexCompressed : clauseFlexTension, formulaFlex,
                          plane.Flex);
  }

  const JudgedDesign& design_;
  const Opinion& opinion_;
  const GroupJudgement& group_;
};

}  // namespace

std::vector<Explanation> ExplainOpinionGroup(const JudgedDesign& design, const Opinion& opinion,
                                             ElementGroup group) {
  std::vector<Explanation> explanations;
  const GroupJudgement* judged = opinion.FindGroup(group);
  if (judged == nullptr) {
    return explanations;
  }
  const OpinionExplainer explainer(design, opinion, *judged);
  for (const MemberCheckRow& row : memberChecks) {
    // Figures at the ends of the range of Double have no digits to show them with.
    PassOver([&] {
      if (std::optional<Explanation> explanation = explainer.Explain(row)) {
        explanations.push_back(std::move(*explanation));
      }
    });
  }
  return explanations;
}

std::vector<Explanation> ExplainOpinion(const JudgedDesign& design, const Opinion& opinion) {
  std::vector<Explanation> explanations;
  for (const GroupJudgement& group : opinion.Groups) {
    AppendTo(explanations, ExplainOpinionGroup(design, opinion, group.Group));
  }
  return explanations;
}

}  // namespace trelonit
