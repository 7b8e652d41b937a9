#include "variants/VariantSpace.h"

#include <algorithm>
#include <utility>

#include "catalogue/SectionLayouts.h"
#include "variants/Axis.h"
#include "variants/Refusal.h"
#include "workstation/design/Selection.h"

namespace trelonit {

namespace {

void RequireOffered(const SectionKind& kind) {
  const SectionLayout* layout = FindSectionLayout(kind.Layout);
  if (layout == nullptr) {
    Refuse("нет расположения профилей с номером " + std::to_string(kind.Layout));
  }
  const auto& offered = layout->Standards;
  if (std::find(offered.begin(), offered.end(), kind.Standard) == offered.end()) {
    Refuse("для расположения профилей " + std::to_string(kind.Layout) + " нет сортамента " +
           std::to_string(kind.Standard));
  }
}

/// The next digit of a number whose digits are the places on the axes.
template <class Value>
const Value* Take(const std::vector<Value>& axis, std::uint64_t& rest) {
  if (axis.empty()) {
    return nullptr;
  }
  const Value& value = axis[rest % axis.size()];
  rest /= axis.size();
  return &value;
}

}  // namespace

VariantSpace::VariantSpace(DesignInputs base, VariantAxes axes, const ProfileTypeArray& catalogue)
    : base_(std::move(base)), axes_(std::move(axes)), catalogue_(catalogue) {
  double count = 1;
  const auto times = [&count](const auto& axis) {
    count *= static_cast<double>(std::max<std::size_t>(axis.size(), 1));
  };
  times(axes_.Schemes);
  times(axes_.Spans);
  times(axes_.Heights);
  times(axes_.EndPanels);
  times(axes_.Panels);
  for (const std::vector<SectionKind>& kinds : axes_.Kinds) {
    times(kinds);
    std::for_each(kinds.begin(), kinds.end(), RequireOffered);
  }
  times(axes_.Gaps);
  times(axes_.Steels);
  if (count > mostVariants) {
    Refuse("вариантов больше 100 000 000");
  }
  count_ = static_cast<std::uint64_t>(count);
}

DesignInputs VariantSpace::At(std::uint64_t number) const {
  DesignInputs inputs = base_;
  // From the last axis to the first.
  const SteelKind* steel = Take(axes_.Steels, number);
  const double* gap = Take(axes_.Gaps, number);
  for (Long place = sectionCount; place >= 1; --place) {
    if (const SectionKind* kind = Take(axes_.Kinds[static_cast<std::size_t>(place) - 1], number)) {
      PutKind(inputs, place, *kind);
    }
  }
  if (steel != nullptr) {
    inputs.SteelName = steel->Name;
    inputs.Ry = steel->Ry;
  }
  if (gap != nullptr) {
    for (SectionRec& section : inputs.ElementSection) {
      if (section.Paired) {
        section.Gdist = *gap;
      }
    }
  }
  if (const Long* panels = Take(axes_.Panels, number)) {
    inputs.PanelNum = *panels;
  }
  if (const double* endPanel = Take(axes_.EndPanels, number)) {
    inputs.LenOporn = *endPanel;
  }
  if (const double* height = Take(axes_.Heights, number)) {
    inputs.Hight = *height;
  }
  if (const double* span = Take(axes_.Spans, number)) {
    inputs.LengthF = *span;
  }
  if (const Long* scheme = Take(axes_.Schemes, number)) {
    inputs.TreloType = static_cast<Integer>(*scheme);
  }
  return inputs;
}

void VariantSpace::PutKind(DesignInputs& inputs, Long place, const SectionKind& kind) const {
  SectionRec& section = inputs.ElementSection[place];
  if (section.Layout == kind.Layout && section.TypeIdx == kind.Standard) {
    return;
  }
  const bool paired = FindSectionLayout(kind.Layout)->Paired;
  section.Layout = kind.Layout;
  section.TypeIdx = kind.Standard;
  section.SizeIdx = 1;
  section.Profile = catalogue_[kind.Standard].Rec[1];
  section.Paired = paired;
  section.Gdist = paired ? GapForThickness(section.Gdist, section.Profile.s) : 0;
}

}  // namespace trelonit
