// Makes the example projects by driving the program as a user would: trelonit_examples FOLDER.

#include <array>
#include <iostream>
#include <string>

#include "apps/cli/ConsoleSession.h"
#include "workstation/modHelper.h"

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
  Long LowerBracing;
  const char* LoadRoof;  // tonnes per metre of upper chord
  const char* LoadSnow;
  std::array<Choice, groupCount> Sections;  // in the order of the options on the form
};

constexpr const char* equalAngle = "Уголок равнополочный по ГОСТ 8509-93";
constexpr const char* squareTube = "гнуто-сварные квадратные профили ГОСТ 30245-2003";
constexpr const char* wideBeam = "Двутавp широкополочный по ГОСТ 26020-83";
constexpr const char* tee = "Тавp ШТ по ТУ 14-2-685-86";

// Trusses at 6 m: a roof of 0.10 t/m2 and the snow of regions III (0.18 t/m2) and II (0.12 t/m2),
// design values.
const std::array<Example, 4> examples{{
    {"scheme1-24m.tsav", 1, "24", "2.8", "3", "8", 2, "0.6", "1.08",
     {{{2, equalAngle, "L100x10", "10"},
       {2, equalAngle, "L80x7", "10"},
       {2, equalAngle, "L90x7", "10"},
       {2, equalAngle, "L80x7", "10"},
       {2, equalAngle, "L90x7", "10"}}}},
    {"scheme2-30m.tsav", 2, "30", "3.2", "3", "10", 2, "0.6", "0.72",
     {{{7, tee, "15ШТ1", "10"},
       {7, tee, "13ШТ1", "10"},
       {2, equalAngle, "L100x7", "10"},
       {2, equalAngle, "L90x7", "10"},
       {2, equalAngle, "L100x7", "10"}}}},
    {"scheme3-18m.tsav", 3, "18", "1.8", "", "6", 2, "0.6", "1.08",
     {{{9, squareTube, "Тр120x6", "10"},
       {9, squareTube, "Тр120x4", "10"},
       {9, squareTube, "Тр80x5", "10"},
       // No verticals here; a single angle keeps the check of their length quiet.
       {1, equalAngle, "L50x5", "10"},
       {9, squareTube, "Тр80x5", "10"}}}},
    {"scheme4-36m.tsav", 4, "36", "3.6", "3", "12", 1, "0.6", "1.08",
     {{{6, wideBeam, "26Ш1", "10"},
       {6, wideBeam, "26Ш1", "10"},
       {2, equalAngle, "L125x12", "10"},
       {2, equalAngle, "L90x6", "10"},
       {2, equalAngle, "L125x12", "10"}}}},
}};

void EnterGeometry(frmMain& form, const Example& example) {
  form.imgTreloType_Click(example.Scheme);
  form.txtLengthF.SetText(example.Span);
  form.txtHight.SetText(example.Height);
  form.txtLenOporn.SetText(example.EndPanel);
  form.cmbPanelNum.SetText(example.Panels);
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

/// The greatest utilisation of each group, for whoever changes an example; true when all pass.
bool Report(const char* file, const CheckResult& check) {
  bool passes = true;
  std::cout << file << ':';
  for (const GroupCheck* group : {&check.UpPoyas, &check.DwnPoyas, &check.Raskos, &check.Stoyka,
                                  &check.OpornRaskos}) {
    const double use = LargestUse(*group);
    std::cout << ' ' << FormatPlain(use, 3, {});
    passes = passes && use <= 1;
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
  session.SetSaveName(JoinPath(folder, example.File));
  if (!form.SaveParam_Click()) {
    return false;
  }
  form.cmdCalculate_Click();
  const auto& results = session.TheProgram().LastResults();
  if (!results || session.MetRuntimeError() || !results->Progib->Satisfied) {
    return false;
  }
  return Report(example.File, form.Model.CheckData);
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
