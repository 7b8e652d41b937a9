#pragma once

#include <functional>
#include <string>

#include "platform/forms/Controls.h"
#include "platform/system/Services.h"

namespace trelonit {

/// The three numbers of the steel that have no box on the main form, as they were written: what is
/// edited again is what was entered. Modulus in MPa, density in t/m3.
struct SteelTexts {
  std::string ModulYung = "210000";
  std::string DensitSteel = "7.850";
  std::string LimitFlex = "150";

  friend bool operator==(const SteelTexts&, const SteelTexts&) = default;
};

/// The window of the elastic modulus, the density and the user's limit slenderness, caption
/// "Дополнительные параметры стали".
class frmParamerty {
 public:
  /// Edits these, which outlive it.
  frmParamerty(Services services, SteelTexts& steel);
  frmParamerty(const frmParamerty&) = delete;
  frmParamerty& operator=(const frmParamerty&) = delete;
  ~frmParamerty() = default;

  /// Takes the texts of the main form.
  void Form_Load();
  /// Three checks, each by itself: what one refuses does not stop the others, and the window closes
  /// in any case.
  void cmdApply_Click();

  Label Form;
  TextBox txtYung;
  TextBox txtDensity;
  TextBox txtLimFlex;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  void TakeLimitFlex();
  void TakeDensity();
  void TakeYung();
  void Refuse(const char* title, const char* text);
  void Doubt(const char* text);
  void Store(std::string& target, double value);

  Services services_;
  SteelTexts& steel_;
};

}  // namespace trelonit
