#include "workstation/live/GeometryFaults.h"

#include "analysis/Scheme.h"
#include "platform/errors/Guard.h"
#include "workstation/design/EnteredDesign.h"

namespace trelonit {

namespace {

class FaultSearch {
 public:
  FaultSearch(const DesignInputs& inputs, const Scheme& scheme, const NumberLocale& locale)
      : inputs_(inputs), scheme_(scheme), locale_(locale) {}

  std::vector<GeometryFault> Run() {
    FindImpossible();
    if (faults_.empty()) {
      FindDoubtful();
    }
    return std::move(faults_);
  }

 private:
  void Tell(GeometryInput at, Severity grade, std::string text) {
    faults_.push_back({.At = at, .Grade = grade, .Text = std::move(text)});
  }

  void FindImpossible() {
    const bool hasSpan = inputs_.LengthF > 0;
    if (!hasSpan) {
      Tell(GeometryInput::Span, Severity::Danger, "Длина фермы должна быть числом больше нуля");
    }
    if (!(inputs_.Hight > 0)) {
      Tell(GeometryInput::Height, Severity::Danger, "Высота фермы должна быть числом больше нуля");
    }
    if (!scheme_.HasPanelNum(inputs_.PanelNum) || inputs_.PanelNum > mostPanels) {
      Tell(GeometryInput::PanelNum, Severity::Danger,
           "У схемы " + std::to_string(scheme_.Number) + " такого числа панелей нет");
    }
    if (hasSpan && scheme_.OwnEndPanels && 2 * inputs_.LenOporn >= inputs_.LengthF) {
      const std::string panel = LengthText(inputs_.LenOporn, locale_);
      Tell(GeometryInput::EndPanel, Severity::Danger,
           "Опорные панели, 2 × " + panel + " м, не оставляют места остальным");
    }
  }

  void FindDoubtful() {
    if (scheme_.OwnEndPanels && inputs_.LenOporn < 0) {
      Tell(GeometryInput::EndPanel, Severity::Warning,
           "Не больше нуля: все панели считаются равными");
    }
    if (!(inputs_.LengthF > inputs_.Hight)) {
      Tell(GeometryInput::Height, Severity::Warning, "Высота не меньше длины фермы");
      return;
    }
    bool steep = false;
    PassOver([&] { steep = HasSteepDiagonals(inputs_); });
    if (steep) {
      Tell(GeometryInput::Height, Severity::Warning, "Раскосы круче 65°");
    }
  }

  const DesignInputs& inputs_;
  const Scheme& scheme_;
  const NumberLocale& locale_;
  std::vector<GeometryFault> faults_;
};

}  // namespace

std::vector<GeometryFault> FindGeometryFaults(const DesignInputs& inputs,
                                              const NumberLocale& locale) {
  const Scheme* scheme = FindScheme(inputs.TreloType);
  if (scheme == nullptr || scheme->Reserved) {
    return {};
  }
  return FaultSearch(inputs, *scheme, locale).Run();
}

std::string LengthText(double metres, const NumberLocale& locale) {
  constexpr int millimetres = 3;
  return NumberToText(RoundToDecimals(metres, millimetres), locale);
}

}  // namespace trelonit
