#pragma once

#include <cstddef>
#include <vector>

#include "variants/Variant.h"

namespace trelonit {

// Of the variants that pass; the others are no answer.

/// Keeps the lightest ones, the lightest first; of equal ones that with the smaller number.
class LightestVariants {
 public:
  explicit LightestVariants(std::size_t most) : most_(most) {}
  void Take(const Variant& variant);
  const std::vector<Variant>& Kept() const { return kept_; }

 private:
  std::size_t most_;
  std::vector<Variant> kept_;
};

/// Keeps those of which no other one is better in the one respect and at least as good in the
/// other: mass against height, or mass against deflection. In the order of their masses.
class VariantFront {
 public:
  using Respect = double (*)(const Variant&);
  explicit VariantFront(Respect respect) : respect_(respect) {}
  void Take(const Variant& variant);
  const std::vector<Variant>& Kept() const { return kept_; }

 private:
  Respect respect_;
  std::vector<Variant> kept_;
};

inline double HeightOf(const Variant& variant) {
  return variant.Inputs.Hight;
}
inline double DeflectionOf(const Variant& variant) {
  return variant.Progib;
}

}  // namespace trelonit
