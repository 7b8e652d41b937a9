#pragma once

#include <algorithm>
#include <vector>

#include "checks/modCheckueStress.h"
#include "opinion/Explanation.h"
#include "opinion/Findings.h"
#include "tests/analysis/Designs.h"
#include "tests/checks/Checks.h"

namespace trelonit::test {

/// A design with all that the opinion reads, to be changed at will; Calculate brings the program's
/// own figures up to date.
struct OpinionCase {
  explicit OpinionCase(const TreloData& data,
                       const SectionArray& sections = SameSections(Single(20, 500, 500)),
                       const CheckNumbers& numbers = StartNumbers())
      : Data(data), Sections(sections), Numbers(numbers) {
    Calculate();
  }

  void Calculate() {
    Result = CalcTrelo(Data).Value;
    Check = CheckueStress(Data, Result, Numbers, Sections).Value;
  }

  JudgedDesign Judged() const {
    return {
        .Data = Data, .Result = Result, .Check = Check, .Sections = Sections, .Numbers = Numbers};
  }
  Opinion Form() const { return FormOpinion(Judged()); }
  std::vector<Finding> Find(const Circumstances& circumstances = {},
                            const NumberLocale& locale = PointLocale()) const {
    return FindAll(Judged(), Form(), circumstances, locale);
  }

  TreloData Data;
  TreloResult Result;
  CheckResult Check;
  SectionArray Sections;
  CheckNumbers Numbers;
};

inline void Fill(BoundedArray<double>& loads, double load) {
  std::fill(loads.begin(), loads.end(), load);
}

/// A truss of 24 m with snow on every upper joint, symmetric, so that the told rules follow statics
/// in every scheme.
inline TreloData SnowyTruss(Long scheme, Long n = 8) {
  TreloData data = Design(scheme, n, 24, 2.5, 24.0 / static_cast<double>(n));
  Fill(data.UpPForce, 3);
  data.UpPForce[0] = 1.5;
  data.UpPForce[n] = 1.5;
  return data;
}

/// Reactions and bar forces in the order of the model.
inline std::vector<double> AllForces(const Statics& statics) {
  std::vector<double> forces{statics.ReactLeft, statics.ReactRight};
  forces.insert(forces.end(), statics.Forces.begin(), statics.Forces.end());
  return forces;
}

}  // namespace trelonit::test
