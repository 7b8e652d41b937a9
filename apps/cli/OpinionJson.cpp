#include "apps/cli/OpinionJson.h"

#include "apps/cli/OpinionOutput.h"
#include "checks/ElementGroups.h"

namespace trelonit::cli {

namespace {

OrderedJson KeyOrNull(const std::optional<ElementGroup>& group) {
  return group ? OrderedJson(RowOf(*group).Key) : OrderedJson();
}

OrderedJson KeyOrNull(const std::optional<MemberCheck>& check) {
  return check ? OrderedJson(RowOf(*check).Key) : OrderedJson();
}

OrderedJson ToldFigures(const GroupCheck& check) {
  OrderedJson figures;
  for (const MemberCheckRow& row : memberChecks) {
    figures[row.Key] = check.*row.Told;
  }
  return figures;
}

OrderedJson JudgedFigures(const GroupJudgement& group) {
  OrderedJson figures;
  for (const MemberCheckRow& row : memberChecks) {
    figures[row.Key] = group.Figure(row.Check);
  }
  return figures;
}

OrderedJson Forces(const Opinion& opinion, ElementGroup group) {
  OrderedJson forces = OrderedJson::array();
  for (std::size_t bar = 0; bar < opinion.Bars.size(); ++bar) {
    if (opinion.Model.Bars[bar].Group == group) {
      forces.push_back(opinion.Bars[bar].Force);
    }
  }
  return forces;
}

/// Strength has no plane: its length is the bar's own, and it has no slenderness. Phi belongs to
/// compressed bars.
OrderedJson Governing(const Opinion& opinion, const GroupJudgement& group) {
  OrderedJson governing = OrderedJson::object();
  for (const MemberCheckRow& row : memberChecks) {
    if (const std::optional<std::size_t>& place = group.GoverningBar(row.Check)) {
      const TrussBar& bar = opinion.Model.Bars[*place];
      const BarJudgement& judged = opinion.Bars[*place];
      const PlaneJudgement* plane = judged.PlaneOf(row.Check);
      governing[row.Key] = {
          {"Bar", bar.Number},
          {"Force", judged.Force},
          {"Length", plane != nullptr ? plane->Length : bar.Length},
          {"Slenderness", plane != nullptr ? OrderedJson(plane->Slenderness) : OrderedJson()},
          {"Phi", plane != nullptr && judged.Compressed ? OrderedJson(plane->Phi) : OrderedJson()}};
    }
  }
  return governing;
}

OrderedJson Groups(const CheckResult& check, const Opinion& opinion) {
  OrderedJson groups = OrderedJson::array();
  for (const GroupJudgement& group : opinion.Groups) {
    const ElementGroupRow& row = RowOf(group.Group);
    groups.push_back({{"Group", row.Key},
                      {"Told", ToldFigures(check.*row.Block)},
                      {"Opinion", JudgedFigures(group)},
                      {"Forces", Forces(opinion, group.Group)},
                      {"Governing", Governing(opinion, group)}});
  }
  return groups;
}

OrderedJson Balance(const Opinion& opinion) {
  const std::vector<std::size_t> unbalanced = opinion.UnbalancedJoints();
  OrderedJson joints = OrderedJson::array();
  for (const std::size_t joint : unbalanced) {
    joints.push_back(JointName(opinion.Model.Joints[joint]));
  }
  return {{"Residual", opinion.GreatestResidual()}, {"Joints", std::move(joints)}};
}

OrderedJson Explanations(const std::vector<Explanation>& explanations) {
  OrderedJson list = OrderedJson::array();
  for (const Explanation& explanation : explanations) {
    list.push_back({{"Group", KeyOrNull(explanation.Group)},
                    {"Check", explanation.Check},
                    {"Source", explanation.Source == ExplanationSource::Told ? "told" : "opinion"},
                    {"Clause", explanation.Clause},
                    {"Formula", explanation.Formula},
                    {"Substitution", explanation.Substitution},
                    {"Value", explanation.Value},
                    {"Limit", explanation.Limit},
                    {"Passed", explanation.Passed}});
  }
  return list;
}

}  // namespace

OrderedJson FindingsJson(const std::vector<Finding>& findings) {
  OrderedJson list = OrderedJson::array();
  for (const Finding& finding : findings) {
    list.push_back({{"Code", KeyOf(finding.Code)},
                    {"Severity", KeyOf(finding.Grade)},
                    {"Group", KeyOrNull(finding.Group)},
                    {"Check", KeyOrNull(finding.Check)},
                    {"Text", finding.Text}});
  }
  return list;
}

std::string OpinionJson(const CheckResult& check, const SecondOpinion& opinion) {
  const OrderedJson object{{"Norm", normName},
                           {"Groups", Groups(check, opinion.Figures)},
                           {"Balance", Balance(opinion.Figures)},
                           {"Findings", FindingsJson(opinion.Findings)},
                           {"Explanation", Explanations(opinion.Explanations())}};
  return JsonText(object);
}

}  // namespace trelonit::cli
