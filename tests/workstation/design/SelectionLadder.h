#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/modCheckueStress.h"
#include "tests/analysis/Designs.h"
#include "workstation/design/DesignModel.h"
#include "workstation/design/Selection.h"

namespace trelonit::test {

/// The block of a group in the record of the checks.
inline GroupCheck CheckResult::*BlockOf(GroupOption group) {
  switch (group) {
    case optionUpPoyas:
      return &CheckResult::UpPoyas;
    case optionDwnPoyas:
      return &CheckResult::DwnPoyas;
    case optionRaskos:
      return &CheckResult::Raskos;
    case optionStoyka:
      return &CheckResult::Stoyka;
    default:
      return &CheckResult::OpornRaskos;
  }
}

inline const GroupCheck& BlockOf(const CheckResult& check, GroupOption group) {
  return check.*BlockOf(group);
}

/// A design whose coefficients a test chooses. The truss has no loads, so that the largest
/// coefficient of a group is its slenderness over the user's limit of 100. Standard 1 has a size
/// for each coefficient wanted; the groups that are not to move have the one thick size of
/// standard 2.
class Ladder {
 public:
  static constexpr Long ladder = 1;
  static constexpr Long thick = 2;
  static constexpr double userLimit = 100;

  explicit Ladder(Long scheme = 1) {
    Model.Last.TreloData = SquareDesign(scheme, 4);
    Model.Last.TreloResult = Solved(Model.Last.TreloData);
    Model.ProfileTypes = ProfileTypeArray(1, 2);
    Model.ProfileTypes[ladder].Rec = BoundedArray<ProfileRec>(1, 0);
    Model.ProfileTypes[thick].Rec = BoundedArray<ProfileRec>(1, 1);
    Model.ProfileTypes[thick].Rec[1] = Record("thick", 1000);
    for (SectionRec& section : Model.Inputs.ElementSection) {
      section.TypeIdx = thick;
      section.SizeIdx = 1;
      section.Layout = layoutOfOneProfile;
      section.Profile = Model.ProfileTypes[thick].Rec[1];
    }
    Check();
  }

  /// A ladder with these coefficients for the group, which stands at one of the sizes.
  Ladder(GroupOption group, const std::vector<double>& uses, Long size, Long scheme = 1)
      : Ladder(scheme) {
    AddSizes(group, uses);
    Put(group, size);
  }

  /// Adds sizes that give the group these coefficients.
  void AddSizes(GroupOption group, const std::vector<double>& uses) {
    const GroupCheck& block = BlockOf(Model.Last.CheckData, group);
    const double length = std::max(block.LenX, block.LenY);
    BoundedArray<ProfileRec>& sizes = Model.ProfileTypes[ladder].Rec;
    for (const double use : uses) {
      sizes.Append(
          Record("S" + std::to_string(sizes.UpperBound() + 1), length * 100 / (use * userLimit)));
    }
  }

  /// Puts the group on a size of the ladder and checks the design anew.
  void Put(GroupOption group, Long size) {
    SectionRec& section = SectionOf(group);
    section.TypeIdx = ladder;
    section.SizeIdx = size;
    section.Profile = Size(size);
    Check();
  }

  /// Moves the user's limit so that the group has a coefficient of exactly 1 at this size.
  void MakeExactlyOne(GroupOption group, Long size) {
    SectionArray sections = Model.Inputs.ElementSection;
    sections[PlaceOfOption(group)].Profile = Size(size);
    const GroupCheck block = BlockOf(
        CheckueStress(Model.Last.TreloData, Model.Last.TreloResult, Numbers, sections).Value,
        group);
    Numbers.LimitUser = std::max(block.FlexX, block.FlexY);
    Check();
  }

  /// Makes a pair of the group's section; the layout, by which the check goes, stays.
  void Pair(GroupOption group, double gap) {
    SectionOf(group).Paired = true;
    SectionOf(group).Gdist = gap;
  }

  /// A size whose check raises an error.
  void Break(Long size) { Size(size).A = 0; }

  void Check() {
    Model.Last.CheckData = CheckueStress(Model.Last.TreloData, Model.Last.TreloResult, Numbers,
                                         Model.Inputs.ElementSection)
                               .Value;
  }

  SelectionProposal Select() {
    Model.Last.ElementSection = Model.Inputs.ElementSection;
    Model.Last.Numbers = Numbers;
    trelonit::Messages told;
    SelectionProposal proposal = SelectSections(Model.Last, Model.ProfileTypes, told);
    ShowAll(Messages, told);
    return proposal;
  }

  ProfileRec& Size(Long size) { return Model.ProfileTypes[ladder].Rec[size]; }
  SectionRec& SectionOf(GroupOption group) {
    return Model.Inputs.ElementSection[PlaceOfOption(group)];
  }

  DesignModel Model;
  CheckNumbers Numbers{
      .Ry = 240, .E = 206000, .Yc = 0.9, .Gn = 1, .Density = 7.85, .LimitUser = userLimit};
  RecordingMessages Messages;

 private:
  static constexpr Long layoutOfOneProfile = 6;

  static ProfileRec Record(const std::string& name, double radius) {
    ProfileRec record;
    record.Name = std::string_view(name);
    record.A = 10;
    record.Jy = record.A * radius * radius;
    record.Jz = record.Jy;
    record.s = 5;
    return record;
  }
};

}  // namespace trelonit::test
