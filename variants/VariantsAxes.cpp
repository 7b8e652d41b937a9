#include "variants/VariantsAxes.h"

#include <algorithm>
#include <cmath>

#include "analysis/Scheme.h"
#include "platform/errors/Guard.h"
#include "platform/text/NumberText.h"
#include "variants/Axis.h"
#include "variants/Refusal.h"
#include "workstation/design/EnteredDesign.h"

namespace trelonit {

namespace {

constexpr const char* axesSection = "Variants";
/// More on one axis is a slip of the pen, and they are held while one types.
constexpr double mostOnAnAxis = 1'000'000;

struct AxisWords {
  const char* Key;
  const char* Caption;
  const char* Hint;
};

constexpr const char* numbersHint =
    "Числа и диапазоны от:до:шаг через запятую, с десятичной точкой, например 2:4:0.1";
constexpr const char* kindsHint =
    "Расположение профилей и номер сортамента через запятую, например 2/1,2/2; кнопка справа "
    "показывает их названия";

constexpr std::array<AxisWords, axisCount> words{{
    {"Span", "Пролет, м", numbersHint},
    {"Height", "Высота, м", numbersHint},
    {"EndPanel", "Крайняя панель, м", numbersHint},
    {"Panels", "Число панелей", "Целые числа и диапазоны от:до:шаг через запятую, например 6:16:2"},
    {"Upper", "Верхний пояс", kindsHint},
    {"Lower", "Нижний пояс", kindsHint},
    {"Diagonals", "Раскосы", kindsHint},
    {"SupportDiagonals", "Опорные раскосы", kindsHint},
    {"Posts", "Стойки", kindsHint},
    {"Gap", "Зазор, мм", "Зазор парных профилей: числа и диапазоны от:до:шаг через запятую"},
    {"Steel", "Сталь",
     "Марка и расчетное сопротивление, МПа, через запятую, например С245:240,С345:335"},
}};

/// As it is written on an axis: to the millimetre, with a point.
std::string Plain(double value) {
  constexpr int decimals = 3;
  return NumberToText(RoundToDecimals(value, decimals), {});
}

std::string Range(double from, double to, double step) {
  return Plain(from) + ":" + Plain(to) + ":" + Plain(step);
}

/// A twelfth to a sixth of the span in ten steps, on round numbers.
std::string OfferedHeights(double span) {
  constexpr int steps = 10;
  const auto round = [](double value) {
    constexpr double grid = 0.05;
    return std::max(grid, std::round(value / grid) * grid);
  };
  const double from = round(span / 12);
  const double step = round((span / 6 - span / 12) / steps);
  return Range(from, from + steps * step, step);
}

std::string OfferedPanels(const DesignInputs& base) {
  constexpr Long around = 2;
  const Scheme& scheme = *FindScheme(base.TreloType);
  const Long step = scheme.PanelStep;
  const Long from = std::max(scheme.FewestPanels, base.PanelNum - around * step);
  const Long to = std::min(mostPanels, base.PanelNum + around * step);
  return std::to_string(from) + ":" + std::to_string(std::max(from, to)) + ":" +
         std::to_string(step);
}

/// A quarter to either side.
std::string OfferedAround(double value, double step) {
  const double side = std::max(step, std::round(value / 4 / step) * step);
  return value > side ? Range(value - side, value + side, step) : Plain(value);
}

std::string OfferedSteel(const DesignInputs& base) {
  std::string name = base.SteelName;
  // They separate steels, and name and strength.
  std::replace(name.begin(), name.end(), ',', ';');
  std::replace(name.begin(), name.end(), ':', ' ');
  return name + ":" + NumberToText(base.Ry, {});
}

SectionPlace PlaceOf(AxisName name) {
  const auto upper = static_cast<Long>(AxisName::Upper);
  return static_cast<SectionPlace>(static_cast<Long>(name) - upper + sectionUpPoyas);
}

std::string KindText(const SectionKind& kind) {
  return std::to_string(kind.Layout) + "/" + std::to_string(kind.Standard);
}

std::vector<SectionKind> KindsIn(const std::string& text) {
  std::vector<SectionKind> kinds;
  PassOver([&] { kinds = ParseKinds(text); });
  return kinds;
}

bool SameKind(const SectionKind& a, const SectionKind& b) {
  return a.Layout == b.Layout && a.Standard == b.Standard;
}

}  // namespace

VariantsAxes::VariantsAxes() {
  for (std::size_t axis = 0; axis < axisCount; ++axis) {
    axes_[axis].Key = words[axis].Key;
    axes_[axis].Caption = words[axis].Caption;
    axes_[axis].Hint = words[axis].Hint;
    axes_[axis].Fault.SetVisible(false);
    axes_[axis].On.Click = [this] { Touch(); };
    axes_[axis].Values.Change = [this, axis] {
      // Who writes values wants them tried.
      if (!filling_) {
        axes_[axis].On.SetChecked(true);
      }
      Touch();
    };
  }
  for (CheckBox& scheme : chkScheme) {
    scheme.Click = [this] { Touch(); };
  }
}

void VariantsAxes::Touch() {
  if (!filling_ && Changed) {
    Changed();
  }
}

void VariantsAxes::MakeOffer(const DesignInputs& base) {
  const auto offer = [this](AxisName name) -> std::string& {
    return offered_.Values[static_cast<std::size_t>(name)];
  };
  constexpr double spanStep = 1;
  constexpr double panelStep = 0.25;
  offer(AxisName::Span) = OfferedAround(base.LengthF, spanStep);
  offer(AxisName::Height) = OfferedHeights(base.LengthF);
  offer(AxisName::EndPanel) = OfferedAround(EndPanelOf(base), panelStep);
  offer(AxisName::Panels) = OfferedPanels(base);
  for (const AxisName name : {AxisName::Upper, AxisName::Lower, AxisName::Diagonals,
                              AxisName::SupportDiagonals, AxisName::Posts}) {
    const SectionRec& section = base.ElementSection[PlaceOf(name)];
    offer(name) = KindText({.Layout = section.Layout, .Standard = section.TypeIdx});
  }
  offer(AxisName::Gap) = "8:14:2";
  offer(AxisName::Steel) = OfferedSteel(base);
  offered_.Scheme = base.TreloType;
}

void VariantsAxes::cmdOffer_Click() {
  filling_ = true;
  for (std::size_t axis = 0; axis < axisCount; ++axis) {
    const auto name = static_cast<AxisName>(axis);
    axes_[axis].Values.SetText(offered_.Values[axis]);
    axes_[axis].On.SetChecked(name == AxisName::Height || name == AxisName::Panels);
  }
  for (Long scheme = 1; scheme <= schemes; ++scheme) {
    chkScheme[static_cast<std::size_t>(scheme) - 1].SetChecked(scheme == offered_.Scheme);
  }
  filling_ = false;
  Touch();
}

void VariantsAxes::Begin(const DesignInputs& base, const ProfileTypeArray& catalogue,
                         SettingsService& settings) {
  catalogue_ = &catalogue;
  MakeOffer(base);
  cmdOffer_Click();
  filling_ = true;
  const auto kept = [&settings](const std::string& key, const std::string& offered) {
    const std::string text = settings.Get(axesSection, key, "");
    return text.empty() ? offered : text;
  };
  for (AxisInput& axis : axes_) {
    const std::string key = axis.Key;
    axis.Values.SetText(kept(key, axis.Values.Text()));
    axis.On.SetChecked(settings.Get(axesSection, key + "On", BooleanToText(axis.On.Checked())) ==
                       BooleanToText(true));
  }
  const std::string stored = kept("Schemes", Schemes());
  for (Long scheme = 1; scheme <= schemes; ++scheme) {
    chkScheme[static_cast<std::size_t>(scheme) - 1].SetChecked(
        stored.find(std::to_string(scheme)) != std::string::npos);
  }
  filling_ = false;
}

void VariantsAxes::Store(SettingsService& settings) const {
  for (std::size_t axis = 0; axis < axisCount; ++axis) {
    const AxisInput& input = axes_[axis];
    const std::string key = input.Key;
    const std::string& text = input.Values.Text();
    settings.Set(axesSection, key, text == offered_.Values[axis] ? std::string() : text);
    settings.Set(axesSection, key + "On", BooleanToText(input.On.Checked()));
  }
  const std::string ticked = Schemes();
  settings.Set(axesSection, "Schemes",
               ticked == std::to_string(offered_.Scheme) ? std::string() : ticked);
}

std::string VariantsAxes::Schemes() const {
  std::string ticked;
  for (Long scheme = 1; scheme <= schemes; ++scheme) {
    if (chkScheme[static_cast<std::size_t>(scheme) - 1].Checked()) {
      ticked += std::to_string(scheme);
    }
  }
  return ticked;
}

bool VariantsAxes::HasKind(AxisName name, const SectionKind& kind) const {
  const std::vector<SectionKind> kinds = KindsIn((*this)[name].Values.Text());
  return std::any_of(kinds.begin(), kinds.end(),
                     [&](const SectionKind& other) { return SameKind(other, kind); });
}

void VariantsAxes::ToggleKind(AxisName name, const SectionKind& kind) {
  std::vector<SectionKind> kinds = KindsIn((*this)[name].Values.Text());
  if (std::erase_if(kinds, [&](const SectionKind& other) { return SameKind(other, kind); }) == 0) {
    kinds.push_back(kind);
  }
  std::string text;
  for (const SectionKind& each : kinds) {
    text += (text.empty() ? "" : ",") + KindText(each);
  }
  (*this)[name].Values.SetText(text);
}

void VariantsAxes::RequireOffered(const std::vector<SectionKind>& kinds) const {
  VariantAxes axes;
  axes.Kinds.front() = kinds;
  // It refuses what the catalogue does not offer.
  const VariantSpace space({}, axes, *catalogue_);
}

void VariantsAxes::Put(AxisName name, VariantAxes& axes) const {
  const std::string& text = (*this)[name].Values.Text();
  if (text.find_first_not_of(" \t") == std::string::npos) {
    Refuse("не задано ни одного значения");
  }
  const auto numbers = [&] { return ParseNumbers(text, mostOnAnAxis); };
  switch (name) {
    case AxisName::Span:
      axes.Spans = numbers();
      return;
    case AxisName::Height:
      axes.Heights = numbers();
      return;
    case AxisName::EndPanel:
      axes.EndPanels = numbers();
      return;
    case AxisName::Panels:
      axes.Panels = ParseWholeNumbers(text, mostOnAnAxis);
      return;
    case AxisName::Gap:
      axes.Gaps = numbers();
      return;
    case AxisName::Steel:
      axes.Steels = ParseSteels(text);
      return;
    default:
      break;
  }
  const std::vector<SectionKind> kinds = ParseKinds(text);
  RequireOffered(kinds);
  axes.Kinds[static_cast<std::size_t>(PlaceOf(name)) - 1] = kinds;
}

std::optional<VariantAxes> VariantsAxes::Read() {
  VariantAxes axes;
  bool right = true;
  for (std::size_t axis = 0; axis < axisCount; ++axis) {
    std::string fault;
    if (axes_[axis].On.Checked()) {
      try {
        Put(static_cast<AxisName>(axis), axes);
      } catch (const RuntimeError& error) {
        fault = error.Description();
        right = false;
      }
    }
    axes_[axis].Fault.SetCaption(fault);
    axes_[axis].Fault.SetVisible(!fault.empty());
  }
  for (Long scheme = 1; scheme <= schemes; ++scheme) {
    if (chkScheme[static_cast<std::size_t>(scheme) - 1].Checked()) {
      axes.Schemes.push_back(scheme);
    }
  }
  return right ? std::optional(std::move(axes)) : std::nullopt;
}

}  // namespace trelonit
