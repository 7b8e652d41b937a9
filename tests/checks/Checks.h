#pragma once

#include <string>
#include <vector>

#include "catalogue/SectionRecord.h"
#include "checks/CheckFormulas.h"
#include "checks/modCheckueStress.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

inline const Message massMessage{.Title = "Трелонит v 1.0.0 (alpha)",
                                 .Text = "Не правильно расчитана масса фермы !",
                                 .Style = MessageStyle::Critical};

inline const Message lengthMessage{.Title = "Трелонит v 1.0.0 (alpha)",
                                   .Text = "Ошибочное значение длинны стержня (<=0)!",
                                   .Style = MessageStyle::Critical};

inline Message DriverError(const std::string& numberAndDescription) {
  return {.Title = "Трелонит v 1.0.0 (alpha)",
          .Text = " Err # " + numberAndDescription,
          .Style = MessageStyle::Critical};
}

/// A single section with these properties as they stand: cm2 and cm4. Any of the layouts that take
/// one profile and its axes unchanged serves.
inline SectionRec Single(double area, double Jin, double Jout, Long layout = 6) {
  SectionRec section;
  section.Profile.A = area;
  section.Profile.Jy = Jin;
  section.Profile.Jz = Jout;
  section.Layout = layout;
  return section;
}

/// The five sections in their order in storage.
inline SectionArray Sections(const SectionRec& upPoyas, const SectionRec& dwnPoyas,
                             const SectionRec& raskos, const SectionRec& opornRaskos,
                             const SectionRec& stoyka) {
  SectionArray sections(1, sectionCount);
  sections[1] = upPoyas;
  sections[2] = dwnPoyas;
  sections[3] = raskos;
  sections[4] = opornRaskos;
  sections[5] = stoyka;
  return sections;
}

inline SectionArray SameSections(const SectionRec& section) {
  return Sections(section, section, section, section, section);
}

inline CheckNumbers StartNumbers() {
  return {.Ry = 240, .E = 206000, .Yc = 0.9, .Gn = 1, .Density = 7.85, .LimitUser = 150};
}

inline BoundedArray<double> Forces(const std::vector<double>& values) {
  BoundedArray<double> forces(1, static_cast<Long>(values.size()));
  for (Long bar = 1; bar <= forces.UpperBound(); ++bar) {
    forces[bar] = values[static_cast<std::size_t>(bar - 1)];
  }
  return forces;
}

/// Every number of a block, indices included.
inline std::vector<double> Numbers(const GroupCheck& g) {
  return {g.AlphaX,
          g.AlphaY,
          g.FlexX,
          g.FlexY,
          g.FlexBarX,
          g.FlexBarY,
          g.PhiX,
          g.PhiY,
          g.Area,
          g.Jin,
          g.Jout,
          g.KStrength,
          g.KStabX,
          g.KStabY,
          g.KFlexX,
          g.KFlexY,
          g.LimitX.Compress,
          g.LimitX.Tension,
          g.LimitX.Tension2,
          g.LimitY.Compress,
          g.LimitY.Tension,
          g.LimitY.Tension2,
          g.NMax.Value,
          static_cast<double>(g.NMax.Index),
          g.NComp.Value,
          static_cast<double>(g.NComp.Index),
          g.LenX,
          g.LenY,
          g.KUserX,
          g.KUserY};
}

/// Every number of the record in its order.
inline std::vector<double> Numbers(const CheckResult& check) {
  std::vector<double> numbers;
  for (const GroupCheck* group :
       {&check.UpPoyas, &check.DwnPoyas, &check.Stoyka, &check.Raskos, &check.OpornRaskos}) {
    const std::vector<double> block = Numbers(*group);
    numbers.insert(numbers.end(), block.begin(), block.end());
  }
  numbers.push_back(check.Mass);
  return numbers;
}

inline bool IsEmpty(const CheckResult& check) {
  return Numbers(check) == std::vector<double>(Numbers(check).size(), 0.0);
}

}  // namespace trelonit::test
