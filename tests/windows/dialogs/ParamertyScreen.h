#pragma once

#include "resources/EmbeddedResources.h"
#include "tests/checks/LocalWorld.h"
#include "tests/windows/DialogHands.h"
#include "windows/dialogs/ParamertyWindow.h"

namespace trelonit::test {

/// The window on screen over a main form with the values of its start.
class ParamertyScreen {
 public:
  explicit ParamertyScreen(const NumberLocale& locale = PointLocale())
      : Outside(resources_, locale) {
    Form.Form_Load();
    Window = std::make_unique<ParamertyWindow>(Form, nullptr);
    ShowActive(*Window);
  }

  QLineEdit& Edit(const std::string& name) { return Find<QLineEdit>(*Window, name); }
  QLineEdit& Yung() { return Edit("txtYung"); }
  QLineEdit& Density() { return Edit("txtDensity"); }
  QLineEdit& Flex() { return Edit("txtLimFlex"); }
  QPushButton& Apply() { return Find<QPushButton>(*Window, "cmdApply"); }
  void TypeAll(const std::string& yung, const std::string& density, const std::string& flex) {
    Type(Yung(), yung);
    Type(Density(), density);
    Type(Flex(), flex);
  }
  bool Open() const { return Window->isVisible(); }
  /// Modulus, density and slenderness of the main form.
  Texts Stored() const { return {Steel.ModulYung, Steel.DensitSteel, Steel.LimitFlex}; }
  /// The titles of the boxes with the first line of each.
  Texts Told() const {
    Texts told;
    for (const Message& message : Outside.Messages.Shown) {
      told.push_back(message.Title + ": " + message.Text.substr(0, message.Text.find('\n')));
    }
    return told;
  }

 private:
  EmbeddedResources resources_;

 public:
  LocalWorld Outside;
  SteelTexts Steel;
  frmParamerty Form{Outside.Bundle(), Steel};
  std::unique_ptr<ParamertyWindow> Window;
};

}  // namespace trelonit::test
