// Makes the example projects by driving the program as a user would: trelonit_examples FOLDER.

#include <array>
#include <iostream>
#include <string>

#include "apps/cli/ConsoleSession.h"
#include "checks/ElementGroups.h"
#include "platform/files/Paths.h"
#include "workstation/design/modHelper.h"

namespace {

using namespace trelonit;

/// A section as it is chosen on the form.
struct Choice {
  Long Layout;
  const char* Standard;
  const char* Size;
  const char* Gap;
};

struct Example {
  const char* File;
  Long Scheme;
  const char* Span;
  const char* Height;
  const char* EndPanel;
  const char* Panels;
  Long UpperBracing;
  Long LowerBracing;
  const char* LoadRoof;  // tonnes per metre of upper chord
  const char* LoadSnow;
  std::array<Choice, groupCount> Sections;  // in the order of the options on the form
};

constexpr const char* unequalAngle = "Уголок неравнополочный по ГОСТ 8510-86*";
constexpr const char* equalAngle = "Уголок равнополочный по ГОСТ 8509-93";
constexpr const char* columnTee = "Тавpы колонные (КТ) по ТУ 14-2-685-86";
constexpr const char* wideTee = "Тавp ШТ по ТУ 14-2-685-86";
constexpr const char* roundTube = "Тpубы электросварные по ГОСТ 10704-91";
constexpr const char* squareTube = "гнуто-сварные квадратные профили ГОСТ 30245-2003";

// Trusses at 6 m: a roof of 0.10 t/m2 and the snow of regions III (0.18 t/m2) and II (0.12 t/m2),
// design values. Every other joint of the upper chord is held, for which the calculation takes half
// of the span: so the chord is wide, and the norm's shorter length is on the safe side.
const std::array<Example, 4> examples{{
    {.File = "scheme1-24m.tsav",
     .Scheme = 1,
     .Span = "24",
     .Height = "2.8",
     .EndPanel = "3",
     .Panels = "8",
     .UpperBracing = 3,
     .LowerBracing = 2,
     .LoadRoof = "0.6",
     .LoadSnow = "1.08",
     .Sections = {{{3, unequalAngle, "L200x125x11", "10"},
                   {2, equalAngle, "L80x7", "10"},
                   {2, equalAngle, "L90x7", "10"},
                   {2, equalAngle, "L80x7", "10"},
                   {2, equalAngle, "L90x7", "10"}}}},
    {.File = "scheme2-30m.tsav",
     .Scheme = 2,
     .Span = "30",
     .Height = "3.2",
     .EndPanel = "3",
     .Panels = "10",
     .UpperBracing = 3,
     .LowerBracing = 2,
     .LoadRoof = "0.6",
     .LoadSnow = "0.72",
     .Sections = {{{9, squareTube, "Тр300x6", "10"},
                   {9, squareTube, "Тр140x5", "10"},
                   {9, squareTube, "Тр100x4", "10"},
                   {9, squareTube, "Тр100x4", "10"},
                   {9, squareTube, "Тр100x4", "10"}}}},
    {.File = "scheme3-18m.tsav",
     .Scheme = 3,
     .Span = "18",
     .Height = "1.8",
     .EndPanel = "",
     .Panels = "6",
     .UpperBracing = 3,
     .LowerBracing = 2,
     .LoadRoof = "0.6",
     .LoadSnow = "1.08",
     .Sections = {{{7, columnTee, "15KT1", "10"},
                   {7, wideTee, "13ШТ1", "10"},
                   {2, equalAngle, "L75x6", "10"},
                   // No verticals here; a single angle keeps the check of their length quiet.
                   {1, equalAngle, "L50x5", "10"},
                   {2, equalAngle, "L75x6", "10"}}}},
    {.File = "scheme4-36m.tsav",
     .Scheme = 4,
     .Span = "36",
     .Height = "3.6",
     .EndPanel = "3",
     .Panels = "12",
     .UpperBracing = 3,
     .LowerBracing = 1,
     .LoadRoof = "0.6",
     .LoadSnow = "1.08",
     .Sections = {{{11, roundTube, "Тр426x7", "10"},
                   {11, roundTube, "Тр273x5", "10"},
                   {11, roundTube, "Тр159x5", "10"},
                   {11, roundTube, "Тр102x4", "10"},
                   {11, roundTube, "Тр159x5", "10"}}}},
}};

void EnterGeometry(frmMain& form, const Example& example) {
  form.imgTreloType_Click(example.Scheme);
  form.txtLengthF.SetText(example.Span);
  form.txtHight.SetText(example.Height);
  form.txtLenOporn.SetText(example.EndPanel);
  form.cmbPanelNum.SetText(example.Panels);
  form.optUpPoyas.Select(example.UpperBracing);
  form.optDownPoyas.Select(example.LowerBracing);
  form.chkProgib.SetChecked(true);
  form.cmbLenlim.SetText("1 / 250");
}

void ChooseSections(frmMain& form, const Example& example) {
  for (Long option = 1; option <= groupCount; ++option) {
    const Choice& choice = example.Sections[static_cast<std::size_t>(option - 1)];
    form.optElementSection.Select(option);
    form.cmbGdist.SetText(choice.Gap);
    form.imgProfileSecSelect_Click(choice.Layout);
    form.cmbTypeProfile.SetText(choice.Standard);
    form.cmbSectType.SetText(choice.Size);
  }
  form.optElementSection.Select(optionUpPoyas);
}

void EnterLoads(frmMain& form, const Example& example) {
  form.imgDistForce_Click();
  form.chkAllPanels.SetChecked(true);
  for (const char* load : {example.LoadRoof, example.LoadSnow}) {
    form.txtForceVal.SetText(load);
    form.cmdAddForce_Click();
  }
  form.chkOwnWeight.SetChecked(true);
}

/// The greatest utilisation of each group, for whoever changes an example; true when all pass, by
/// the second opinion too.
bool Report(const char* file, const CheckResult& check, const Opinion& opinion) {
  bool passes = !opinion.HasRefused();
  std::cout << file << ':';
  for (const ElementGroup group :
       {ElementGroup::UpPoyas, ElementGroup::DwnPoyas, ElementGroup::Raskos, ElementGroup::Stoyka,
        ElementGroup::OpornRaskos}) {
    const double use = LargestUse(check.*RowOf(group).Block);
    std::cout << ' ' << FormatPlain(use, 3, {});
    const GroupJudgement* judged = opinion.FindGroup(group);
    passes = passes && use <= 1 && (judged == nullptr || LargestFigure(*judged) <= 1);
  }
  std::cout << '\n';
  return passes;
}

bool Make(const Example& example, const std::string& folder) {
  cli::ConsoleSession session(MessageAnswer::Yes);
  if (!session.Start()) {
    return false;
  }
  frmMain& form = session.Main();
  EnterGeometry(form, example);
  form.tabMain.SetTab(1);
  ChooseSections(form, example);
  form.tabMain.SetTab(2);
  EnterLoads(form, example);
  // Saved before the first calculation: own weight is asked for and not yet inside the loads.
  if (!session.SaveProject(JoinPath(folder, example.File))) {
    return false;
  }
  form.cmdCalculate_Click();
  const auto& results = session.TheProgram().LastResults();
  if (!results || session.MetRuntimeError() || !results->Of.Progib->Satisfied) {
    return false;
  }
  return Report(example.File, form.Model.Last.CheckData, results->Opinion.Figures);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: trelonit_examples FOLDER\n";
    return 2;
  }
  bool all = true;
  for (const Example& example : examples) {
    if (!Make(example, argv[1])) {
      std::cerr << example.File << ": the design does not pass\n";
      all = false;
    }
  }
  return all ? 0 : 1;
}
