#include "variants/BestVariants.h"

#include <algorithm>

namespace trelonit {

namespace {

bool Lighter(const Variant& a, const Variant& b) {
  return a.Mass < b.Mass || (a.Mass == b.Mass && a.Number < b.Number);
}

void Insert(std::vector<Variant>& kept, const Variant& variant) {
  kept.insert(std::lower_bound(kept.begin(), kept.end(), variant, Lighter), variant);
}

}  // namespace

void LightestVariants::Take(const Variant& variant) {
  if (variant.Verdict != VariantVerdict::Passes || most_ == 0 ||
      (kept_.size() == most_ && !Lighter(variant, kept_.back()))) {
    return;
  }
  Insert(kept_, variant);
  if (kept_.size() > most_) {
    kept_.pop_back();
  }
}

void VariantFront::Take(const Variant& variant) {
  if (variant.Verdict != VariantVerdict::Passes) {
    return;
  }
  const auto noWorse = [this](const Variant& a, const Variant& b) {
    return a.Mass <= b.Mass && respect_(a) <= respect_(b);
  };
  // Of two that are alike the one that came first stays.
  if (std::any_of(kept_.begin(), kept_.end(),
                  [&](const Variant& other) { return noWorse(other, variant); })) {
    return;
  }
  std::erase_if(kept_, [&](const Variant& other) { return noWorse(variant, other); });
  Insert(kept_, variant);
}

}  // namespace trelonit
