#pragma once

#include <map>
#include <memory>

#include "variants/Variant.h"

namespace trelonit {

/// A text that many rows have in common.
using SharedText = std::shared_ptr<const std::string>;

/// A variant as a table shows it: without loads and dimensions, so that hundreds of thousands can
/// be held.
struct VariantRow {
  struct Group {
    double Use = 0;
    double Gap = 0;
    SharedText Profile;  ///< the name of its size
    short Layout = 0;
    short Standard = 0;
    bool Paired = false;
  };

  bool IsPossible() const { return Verdict != VariantVerdict::Impossible; }
  bool Passes() const { return Verdict == VariantVerdict::Passes; }

  std::uint64_t Number = 0;
  double Span = 0;
  double Height = 0;
  double EndPanel = 0;
  double Ry = 0;
  double Mass = 0;
  double Progib = 0;
  std::array<Group, sectionCount> Groups;  ///< by SectionPlace, from 0
  SharedText Steel;
  SharedText Reason;
  Long Panels = 0;
  int Rounds = 0;
  short Scheme = 0;
  VariantVerdict Verdict = VariantVerdict::Impossible;
};

/// Makes rows of variants; texts that repeat are held once.
class VariantRows {
 public:
  VariantRow Of(const Variant& variant);

 private:
  SharedText Share(const std::string& text);

  std::map<std::string, SharedText> texts_;
};

}  // namespace trelonit
