#include "variants/VariantRow.h"

namespace trelonit {

VariantRow VariantRows::Of(const Variant& variant) {
  const DesignInputs& inputs = variant.Inputs;
  VariantRow row{.Number = variant.Number,
                 .Span = inputs.LengthF,
                 .Height = inputs.Hight,
                 .EndPanel = inputs.LenOporn,
                 .Ry = inputs.Ry,
                 .Mass = variant.Mass,
                 .Progib = variant.Progib,
                 .Groups = {},
                 .Steel = Share(inputs.SteelName),
                 .Reason = Share(variant.Reason),
                 .Panels = inputs.PanelNum,
                 .Rounds = variant.Rounds,
                 .Scheme = inputs.TreloType,
                 .Verdict = variant.Verdict};
  for (Long place = 1; place <= sectionCount; ++place) {
    const SectionRec& section = inputs.ElementSection[place];
    const auto at = static_cast<std::size_t>(place) - 1;
    row.Groups[at] = {.Use = variant.Use[at],
                      .Gap = section.Gdist,
                      .Profile = Share(section.Profile.Name.Trimmed()),
                      .Layout = static_cast<short>(section.Layout),
                      .Standard = static_cast<short>(section.TypeIdx),
                      .Paired = section.Paired};
  }
  return row;
}

SharedText VariantRows::Share(const std::string& text) {
  SharedText& shared = texts_[text];
  if (!shared) {
    shared = std::make_shared<const std::string>(text);
  }
  return shared;
}

}  // namespace trelonit
