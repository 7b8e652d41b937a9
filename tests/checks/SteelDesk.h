#pragma once

#include <string>

#include "checks/frmSteel.h"
#include "resources/EmbeddedResources.h"
#include "tests/checks/LocalWorld.h"

namespace trelonit::test {

/// The embedded resources until the test takes the custom blocks away.
class BreakableResources : public EmbeddedResources {
 public:
  explicit BreakableResources(bool broken) : Broken(broken) {}
  std::string_view CustomBlock(Integer identifier) override {
    if (Broken) {
      throw ResourceNotFoundError(identifier);
    }
    return EmbeddedResources::CustomBlock(identifier);
  }
  bool Broken;
};

/// The main form's part of the steel window, with the values of its start.
struct SteelTargets {
  SteelTargets() {
    lblStillName.SetCaption("Сталь С245 - лист от 2 до 20 мм");
    txtRy.SetText("240");
    txtNadegnost.SetText("1");
    txtUsloviyaRabot.SetText("0.9");
  }
  frmSteel::Targets References() { return {lblStillName, txtRy, txtNadegnost, txtUsloviyaRabot}; }
  /// Name, resistance, importance and condition.
  std::string All() const {
    return lblStillName.Caption() + "|" + txtRy.Text() + "|" + txtNadegnost.Text() + "|" +
           txtUsloviyaRabot.Text();
  }
  Label lblStillName;
  TextBox txtRy;
  TextBox txtNadegnost;
  TextBox txtUsloviyaRabot;
};

/// The steel window, just opened over a main form that was never touched.
struct SteelDesk {
  explicit SteelDesk(const NumberLocale& locale = {}, bool broken = false)
      : Resources(broken), World(Resources, locale), Form(World.Bundle(), Main.References()) {
    Form.Unload = [this] { ++Closed; };
    Form.Form_Load();
  }
  /// The two resistances as the boxes show them.
  std::string Shown() const { return Form.txtRysheet.Text() + "/" + Form.txtRyfason.Text(); }
  void Choose(const std::string& grade, Long range) {
    Form.cmbSteelName.SetText(grade);
    Form.cmbSheetThick.Select(range);
  }

  BreakableResources Resources;
  LocalWorld World;
  SteelTargets Main;
  frmSteel Form;
  int Closed = 0;
};

}  // namespace trelonit::test
