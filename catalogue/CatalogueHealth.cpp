#include "catalogue/CatalogueHealth.h"

#include <algorithm>
#include <array>
#include <utility>

#include "catalogue/StandardFigures.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {
namespace {

/// The names and places of the three figures that are compared.
struct Figure {
  const char* Quantity;
  double ProfileRec::*Stored;
  double SectionFigures::*Computed;
  FigureRule StandardRule::*Rule;
};
constexpr std::array<Figure, 3> comparedFigures{{
    {"A", &ProfileRec::A, &SectionFigures::A, &StandardRule::A},
    {"Jy", &ProfileRec::Jy, &SectionFigures::Jy, &StandardRule::Jy},
    {"Jz", &ProfileRec::Jz, &SectionFigures::Jz, &StandardRule::Jz},
}};

bool IsEmpty(const ProfileRec& record) {
  ProfileRec blank;
  blank.Type = record.Type;
  return record == blank;
}

/// Gathers the findings of one standard.
class StandardCheck {
 public:
  StandardCheck(Long typeIdx, std::string standard, std::vector<Deviation>& findings)
      : typeIdx_(typeIdx), standard_(std::move(standard)), findings_(findings) {}

  void ReportWithoutFigures(Long sizeIdx, const std::string& name, const char* why) {
    findings_.push_back({typeIdx_, sizeIdx, standard_, name, why});
  }

  void Verify(Long sizeIdx, const ProfileRec& record) {
    const std::string name = record.Name.Trimmed();
    if (IsEmpty(record)) {
      ReportWithoutFigures(sizeIdx, name, "empty");
    } else if (typeIdx_ < 1 || typeIdx_ > standardCount) {
      ReportWithoutFigures(sizeIdx, name, "standard");
    } else {
      Compare(sizeIdx, name, record);
    }
  }

 private:
  void Compare(Long sizeIdx, const std::string& name, const ProfileRec& record) {
    const StandardRule& rule = RuleOfStandard(typeIdx_);
    const char* stage = "dimensions";
    try {
      const ExpectedFigures expected = rule.Compute(record);
      RequireInertia(expected.Low);
      stage = "numbers";
      std::vector<Deviation> deviations;
      for (const Figure& figure : comparedFigures) {
        const Real stored = Finite(record.*figure.Stored);
        const Real low = expected.Low.*figure.Computed;
        const Real high = expected.High.*figure.Computed;
        const Real computed = std::max<double>(low, std::min<double>(stored, high));
        const Real difference = stored - computed;
        const Real allowance = (rule.*figure.Rule).Allowance(computed);
        if (Magnitude(difference) > allowance) {
          deviations.push_back({typeIdx_, sizeIdx, standard_, name, figure.Quantity, stored,
                                computed, 100 * (difference / computed),
                                100 * (allowance / computed)});
        }
      }
      findings_.insert(findings_.end(), deviations.begin(), deviations.end());
    } catch (const RuntimeError&) {
      ReportWithoutFigures(sizeIdx, name, stage);
    }
  }

  /// A section so small that its inertia is lost in rounding is none that can be compared.
  static void RequireInertia(const SectionFigures& figures) {
    RequireDrawable(figures.A > 0 && figures.Jy > 0 && figures.Jz > 0);
  }

  Long typeIdx_;
  std::string standard_;
  std::vector<Deviation>& findings_;
};

}  // namespace

std::vector<Deviation> VerifyCatalogue(const ProfileTypeArray& catalogue) {
  std::vector<Deviation> findings;
  if (!catalogue.IsAllocated()) {
    return findings;
  }
  for (Long typeIdx = catalogue.LowerBound(); typeIdx <= catalogue.UpperBound(); ++typeIdx) {
    const ProfileType& standard = catalogue[typeIdx];
    StandardCheck check(typeIdx, standard.Name.Trimmed(), findings);
    if (standard.Rec.begin() == standard.Rec.end()) {
      check.ReportWithoutFigures(0, {}, "empty");
      continue;
    }
    for (Long sizeIdx = standard.Rec.LowerBound(); sizeIdx <= standard.Rec.UpperBound();
         ++sizeIdx) {
      check.Verify(sizeIdx, standard.Rec[sizeIdx]);
    }
  }
  return findings;
}

std::vector<Deviation> VerifyRecord(Long typeIdx, const ProfileRec& record) {
  std::vector<Deviation> findings;
  StandardCheck(typeIdx, record.Type.Trimmed(), findings).Verify(0, record);
  return findings;
}

}  // namespace trelonit
