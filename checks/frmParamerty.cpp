#include "checks/frmParamerty.h"

#include <utility>

#include "platform/errors/Guard.h"
#include "platform/text/NumberText.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/Integers.h"

namespace trelonit {

namespace {

constexpr const char* refusedFlex = "Параметр не принят !!!";
constexpr const char* refused = "Параметр не принят!!!";
constexpr const char* doubted = "Параметр принят, но вызывает сомнения!!!";

}  // namespace

frmParamerty::frmParamerty(Services services, Targets targets)
    : services_(std::move(services)), targets_(targets) {
  Form.SetCaption("Дополнительные параметры стали");
}

void frmParamerty::Form_Load() {
  txtDensity.SetText(targets_.txtDensitSteel.Text());
  txtYung.SetText(targets_.txtModulYung.Text());
  txtLimFlex.SetText(targets_.txtLimitFlex.Text());
}

void frmParamerty::cmdApply_Click() {
  // A slenderness beyond a 16-bit number has no message of its own; the other two go on.
  Guard(services_.Messages, "cmdApply_Click", [&] { TakeLimitFlex(); });
  TakeDensity();
  TakeYung();
  if (Unload) {
    Unload();
  }
}

// The bounds of all three are the program's own rules.

void frmParamerty::TakeLimitFlex() {
  const Integer flex = RoundToInteger(ParseNumber(txtLimFlex.Text(), services_.Locale));
  if (flex <= 0) {
    Refuse(refusedFlex, "Гибкость должна быть числом положительным > 0");
  } else if (flex <= 400) {
    Store(targets_.txtLimitFlex, flex);
  } else {
    Refuse(refusedFlex, "Гибкость должна быть < 400");
  }
}

void frmParamerty::TakeDensity() {
  const double density = ParseNumber(txtDensity.Text(), services_.Locale);
  if (density < 4 || density > 9) {
    Refuse(refused,
           "Плотность стали, которую Вы указали, вызывает серьезные сомнения !\n"
           "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
           "стали !!!\n"
           "Сверхлегкие или особо тыжелые стали не рассматриваются !!!");
    return;
  }
  if (density < 7) {
    Doubt(
        "Плотность стали, которую Вы указали, вызывает сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!");
  }
  Store(targets_.txtDensitSteel, density);
}

void frmParamerty::TakeYung() {
  const double yung = ParseNumber(txtYung.Text(), services_.Locale);
  // Intended: the bounds themselves are taken by none of the three, and the main form then keeps
  // its value without a word.
  if (yung > 180000 && yung < 300000) {
    Store(targets_.txtModulYung, yung);
  } else if (yung > 100000 && yung < 180000) {
    Doubt(
        "Модуль Юнга, которую Вы указали, вызывает сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!");
    Store(targets_.txtModulYung, yung);
  } else if (yung < 100000 || yung > 300000) {
    Refuse(refused,
           "Модуль Юнга, которую Вы указали, вызывает серьезные сомнения !\n"
           "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
           "стали !!!\n"
           "Весьма необычные стали стали не рассматриваются !!!");
  }
}

void frmParamerty::Refuse(const char* title, const char* text) {
  services_.Messages.Show({.Title = title, .Text = text, .Style = MessageStyle::Critical});
}

void frmParamerty::Doubt(const char* text) {
  services_.Messages.Show({.Title = doubted, .Text = text, .Style = MessageStyle::Exclamation});
}

void frmParamerty::Store(TextBox& target, double value) {
  target.SetText(NumberToText(value, services_.Locale));
}

}  // namespace trelonit
