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

frmParamerty::frmParamerty(Services services, SteelTexts& steel)
    : services_(std::move(services)), steel_(steel) {
  Form.SetCaption("Дополнительные параметры стали");
}

void frmParamerty::Form_Load() {
  txtDensity.SetText(steel_.DensitSteel);
  txtYung.SetText(steel_.ModulYung);
  txtLimFlex.SetText(steel_.LimitFlex);
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
    Store(steel_.LimitFlex, flex);
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
  Store(steel_.DensitSteel, density);
}

void frmParamerty::TakeYung() {
  const double yung = ParseNumber(txtYung.Text(), services_.Locale);
  // Intended: the bounds themselves are taken by none of the three, and the main form then keeps
  // its value without a word.
  if (yung > 180000 && yung < 300000) {
    Store(steel_.ModulYung, yung);
  } else if (yung > 100000 && yung < 180000) {
    Doubt(
        "Модуль Юнга, которую Вы указали, вызывает сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!");
    Store(steel_.ModulYung, yung);
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

void frmParamerty::Store(std::string& target, double value) {
  target = NumberToText(value, services_.Locale);
}

}  // namespace trelonit
