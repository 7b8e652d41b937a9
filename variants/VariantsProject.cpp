#include "variants/VariantsProject.h"

#include "platform/system/ProgramNames.h"
#include "platform/text/NumberText.h"
#include "workstation/design/EnteredDesign.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/live/LiveResult.h"

namespace trelonit {

DesignInputs BaseOfStudy(const frmMain& form) {
  DesignInputs base = form.EnteredInputs();
  OwnWeightState inside = form.Model.OwnWeight;
  if (inside.Added && WithdrawOwnWeight(base.Loads, inside)) {
    // What the subtraction leaves in the last digits is no load.
    constexpr int decimals = 12;
    for (BoundedArray<double>* panels : {&base.Loads.UpDistForce, &base.Loads.DwnDistForce}) {
      for (double& load : *panels) {
        load = RoundToDecimals(load, decimals);
      }
    }
  }
  return base;
}

std::optional<Message> WhyNotCalculated(const DesignInputs& base, const NumberLocale& locale) {
  const Messages told = Calculate(DesignOf(base, {}), CheckNumbersOf(base)).Told;
  if (!told.empty()) {
    return told.front();
  }
  const LiveResult result = FormLiveResult(base, {}, locale);
  return result.HasRefused()
             ? std::optional(Message{
                   .Title = warningTitle, .Text = result.Refusal, .Style = MessageStyle::Critical})
             : std::nullopt;
}

void ShowAsProject(frmMain& form, const DesignInputs& inputs) {
  DesignState state = form.State();
  const NumberLocale& locale = form.Locale();
  // What already says so stays as it was typed.
  const auto write = [&](std::string& text, double value) {
    if (ParseNumber(text, locale) != value) {
      text = NumberToText(value, locale);
    }
  };
  write(state.Texts.LengthF, inputs.LengthF);
  write(state.Texts.Hight, inputs.Hight);
  write(state.Texts.LenOporn, inputs.LenOporn);
  write(state.Texts.Ry, inputs.Ry);
  write(state.Texts.UsloviyaRabot, inputs.UsloviyaRabot);
  write(state.Texts.Nadegnost, inputs.Nadegnost);
  write(state.Texts.Steel.ModulYung, inputs.ModulYung);
  write(state.Texts.Steel.DensitSteel, inputs.Density);
  write(state.Texts.Steel.LimitFlex, inputs.LimitFlex);
  state.Texts.PanelNum = std::to_string(inputs.PanelNum);
  state.Inputs = inputs;
  state.OwnWeight = {};
  form.ShowState(state, {.Tab = calculateTab});
}

}  // namespace trelonit
