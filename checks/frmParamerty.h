#pragma once

#include <functional>

#include "platform/forms/Controls.h"
#include "platform/system/Services.h"

namespace trelonit {

/// The window of the elastic modulus, the density and the user's limit slenderness, caption
/// "Дополнительные параметры стали".
class frmParamerty {
 public:
  /// The boxes of the main form that it edits.
  struct Targets {
    TextBox& txtModulYung;
    TextBox& txtDensitSteel;
    TextBox& txtLimitFlex;
  };

  frmParamerty(Services services, Targets targets);
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
  void Store(TextBox& target, double value);

  Services services_;
  Targets targets_;
};

}  // namespace trelonit
