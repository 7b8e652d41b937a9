#include "apps/cli/ResultJson.h"

#include "apps/cli/OpinionJson.h"
#include "catalogue/ProfileFields.h"

namespace trelonit::cli {

namespace {

using Json = OrderedJson;

Json ToJson(const BoundedArray<double>& values) {
  Json list = Json::array();
  for (const double value : values) {
    list.push_back(value);
  }
  return list;
}

Json ToJson(const SquareTable<double>& table) {
  Json rows = Json::array();
  for (Long row = 1; row <= table.Size(); ++row) {
    Json cells = Json::array();
    for (Long column = 1; column <= table.Size(); ++column) {
      cells.push_back(table(row, column));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

Json ToJson(const TreloData& data) {
  return {{"TreloType", data.TreloType},
          {"LengthF", data.LengthF},
          {"Hight", data.Hight},
          {"LenOporn", data.LenOporn},
          {"PanelNum", data.PanelNum},
          {"UpPForce", ToJson(data.UpPForce)},
          {"UpDistForce", ToJson(data.UpDistForce)},
          {"DwnPForce", ToJson(data.DwnPForce)},
          {"DwnDistForce", ToJson(data.DwnDistForce)},
          {"UpPoyasBrace", data.UpPoyasBrace},
          {"DownPoyasBrace", data.DownPoyasBrace}};
}

Json ToJson(const TreloResult& result, bool barForce) {
  Json object{{"KnotNum", result.KnotNum},
              {"AngleOporn", result.AngleOporn},
              {"AngleRaskos", result.AngleRaskos},
              {"LenPanel", result.LenPanel},
              {"LenOpornRaskos", result.LenOpornRaskos},
              {"LenRaskos", result.LenRaskos},
              {"UpKnotLoad", ToJson(result.UpKnotLoad)},
              {"DwnKnotLoad", ToJson(result.DwnKnotLoad)},
              {"ReactLeft", result.ReactLeft},
              {"ReactRight", result.ReactRight}};
  if (barForce) {
    object["BarForce"] = ToJson(result.BarForce);
  }
  object.update({{"UpPoyasForce", ToJson(result.UpPoyasForce)},
                 {"DwnPoyasForce", ToJson(result.DwnPoyasForce)},
                 {"RaskosForce", ToJson(result.RaskosForce)},
                 {"StoykaForce", ToJson(result.StoykaForce)},
                 {"Balanced", result.Balanced},
                 {"SumLenUpPoyas", result.SumLenUpPoyas},
                 {"SumLenDwnPoyas", result.SumLenDwnPoyas},
                 {"SumLenOpornRaskos", result.SumLenOpornRaskos},
                 {"SumLenRaskos", result.SumLenRaskos},
                 {"SumLenStoyka", result.SumLenStoyka}});
  return object;
}

Json ToJson(const ForceExtreme& force) {
  return {{"Value", force.Value}, {"Index", force.Index}};
}

Json ToJson(const LimitFlex& limit) {
  return {{"Compress", limit.Compress}, {"Tension", limit.Tension}, {"Tension2", limit.Tension2}};
}

Json ToJson(const GroupCheck& group) {
  return {{"AlphaX", group.AlphaX},
          {"AlphaY", group.AlphaY},
          {"FlexX", group.FlexX},
          {"FlexY", group.FlexY},
          {"FlexBarX", group.FlexBarX},
          {"FlexBarY", group.FlexBarY},
          {"PhiX", group.PhiX},
          {"PhiY", group.PhiY},
          {"Area", group.Area},
          {"Jin", group.Jin},
          {"Jout", group.Jout},
          {"KStrength", group.KStrength},
          {"KStabX", group.KStabX},
          {"KStabY", group.KStabY},
          {"KFlexX", group.KFlexX},
          {"KFlexY", group.KFlexY},
          {"LimitX", ToJson(group.LimitX)},
          {"LimitY", ToJson(group.LimitY)},
          {"NMax", ToJson(group.NMax)},
          {"NComp", ToJson(group.NComp)},
          {"LenX", group.LenX},
          {"LenY", group.LenY},
          {"KUserX", group.KUserX},
          {"KUserY", group.KUserY}};
}

Json ToJson(const CheckResult& check) {
  return {{"UpPoyas", ToJson(check.UpPoyas)},         {"DwnPoyas", ToJson(check.DwnPoyas)},
          {"Stoyka", ToJson(check.Stoyka)},           {"Raskos", ToJson(check.Raskos)},
          {"OpornRaskos", ToJson(check.OpornRaskos)}, {"Mass", check.Mass}};
}

Json ToJson(const ProfileRec& record) {
  Json json{{"Name", record.Name.Trimmed()}, {"Type", record.Type.Trimmed()}};
  for (const ProfileField& field : profileFields) {
    json[std::string(field.Name)] = record.*field.Number;
  }
  return json;
}

Json ToJson(const SectionRec& section) {
  return {{"TypeIdx", section.TypeIdx},
          {"SizeIdx", section.SizeIdx},
          {"Gdist", section.Gdist},
          {"Paired", section.Paired},
          {"Profile", ToJson(section.Profile)},
          {"Layout", section.Layout}};
}

Json ToJson(const std::vector<Message>& messages) {
  Json list = Json::array();
  for (const Message& message : messages) {
    list.push_back({{"Title", message.Title},
                    {"Text", message.Text},
                    {"Style", static_cast<int>(message.Style)}});
  }
  return list;
}

Json ToJson(const std::optional<ProgibResult>& progib) {
  if (!progib) {
    return nullptr;
  }
  return {{"Value", progib->Value}, {"Limit", progib->Limit}, {"Satisfied", progib->Satisfied}};
}

Json ToJson(const SelectionRow& row) {
  return {{"Group", row.Group},
          {"Name", row.Name},
          {"SizeIdx", row.SizeIdx},
          {"Gdist", row.Gdist},
          {"Possible", row.Possible}};
}

Json ToJson(const ResultLists& lists, const std::vector<Message>& messages, bool barForce) {
  const Calculation& calculation = lists.Of;
  Json sections = Json::array();
  for (const SectionRec& section : calculation.ElementSection) {
    sections.push_back(ToJson(section));
  }
  return {{"TreloData", ToJson(calculation.TreloData)},
          {"TreloResult", ToJson(calculation.TreloResult, barForce)},
          {"CheckResult", ToJson(calculation.CheckData)},
          {"ElementSection", std::move(sections)},
          {"OwnWeightAdded", calculation.OwnWeight.Added},
          {"OwnWeightPerMetre", calculation.OwnWeight.PerMetre},
          {"Progib", ToJson(calculation.Progib)},
          {"lstForces", lists.lstForces},
          {"MSFlexGKoefUse", lists.MSFlexGKoefUse},
          {"Messages", ToJson(messages)}};
}

}  // namespace

std::string CalcJson(const ResultLists& lists, const std::vector<Message>& messages,
                     bool barForce) {
  Json object = ToJson(lists, messages, barForce);
  object["Findings"] = FindingsJson(lists.Opinion.Findings);
  return JsonText(object);
}

std::string SelectJson(const ResultLists& lists, const std::vector<Message>& messages,
                       const std::vector<SelectionRow>& selection, int rounds) {
  Json object = ToJson(lists, messages, false);
  Json rows = Json::array();
  for (const SelectionRow& row : selection) {
    rows.push_back(ToJson(row));
  }
  object["Selection"] = std::move(rows);
  if (rounds > 0) {
    object["Rounds"] = rounds;
  }
  return JsonText(object);
}

std::string FailureJson(const std::vector<Message>& messages) {
  return JsonText({{"Messages", ToJson(messages)}});
}

}  // namespace trelonit::cli
