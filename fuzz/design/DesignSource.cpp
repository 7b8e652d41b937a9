#include "fuzz/design/DesignSource.h"

#include <array>

#include "analysis/Scheme.h"
#include "catalogue/ProfileFields.h"
#include "catalogue/SectionLayouts.h"
#include "fuzz/support/FuzzWorld.h"
#include "fuzz/support/ShippedCatalogue.h"
#include "workstation/design/Loads.h"

namespace trelonit::fuzz {

namespace {

constexpr Long baseSchemes = 4;
constexpr std::size_t mostSteps = 40;
/// A truss of scheme 1 has 1000 joints then.
constexpr Long manyPanels = 498;

}  // namespace

DesignSource::DesignSource(ByteSource& source) : source_(source) {
  SetUp(static_cast<Long>(source_.Below(baseSchemes)) + 1);
  for (std::size_t step = 0; step < mostSteps && !source_.IsEmpty(); ++step) {
    Step();
  }
}

void DesignSource::SetUp(Long scheme) {
  DesignInputs& inputs = Model.Inputs;
  inputs = {.TreloType = static_cast<Integer>(scheme),
            .UpPoyasBrace = 3,
            .DownPoyasBrace = 2,
            .LengthF = 12,
            .Hight = 1.4,
            .LenOporn = 3,
            .PanelNum = FindScheme(scheme)->FewestPanels,
            .SteelName = "С245",
            .Ry = 240,
            .Density = 7.85,
            .ModulYung = 210000,
            .LimitFlex = 150,
            .Nadegnost = 1,
            .UsloviyaRabot = 0.9,
            .ProgibOn = 1,
            .LenLim = "1 / 250",
            .ProgibUpper = 1,
            .OwnWeightOn = 1};
  constexpr Long pairedAngles = 2;
  for (SectionRec& section : inputs.ElementSection) {
    section = {.TypeIdx = pairedAngles,
               .SizeIdx = 50,
               .Gdist = 10,
               .Paired = true,
               .Profile = ShippedCatalogue()[pairedAngles].Rec[50],
               .Layout = 2};
  }
  ClearLoads(inputs.Loads, scheme, inputs.PanelNum);
  for (double& load : inputs.Loads.UpDistForce) {
    load = 1.68;
  }
  Model.Accepted = {inputs.LengthF, inputs.Hight, inputs.LenOporn, inputs.PanelNum};
}

void DesignSource::Step() {
  switch (source_.Below(9)) {
    case 0:
      ChangeScheme();
      break;
    case 1:
      ChangeSize();
      break;
    case 2:
      ChangePanels();
      break;
    case 3:
      ChangeNumber();
      break;
    case 4:
      ChangeLoads();
      break;
    case 5:
      ChangeLoad();
      break;
    case 6:
      ChangeSection();
      break;
    case 7:
      ChangeRecord();
      break;
    default:
      ChangeOptions();
  }
}

void DesignSource::ChangeScheme() {
  Model.Inputs.TreloType = static_cast<Integer>(source_.Byte() % 14 - 1);
  Model.Inputs.UpPoyasBrace = static_cast<Integer>(source_.Byte() % 8 - 1);
  Model.Inputs.DownPoyasBrace = static_cast<Integer>(source_.Byte() % 8 - 1);
}

void DesignSource::ChangeSize() {
  constexpr std::array<double AcceptedGeometry::*, 3> sizes{
      &AcceptedGeometry::LengthF, &AcceptedGeometry::Hight, &AcceptedGeometry::LenOporn};
  Model.Accepted.*sizes.at(source_.Below(sizes.size())) = source_.Number();
}

void DesignSource::ChangePanels() {
  constexpr Long fewestOfMany = 30;
  switch (source_.Below(8)) {
    case 0:
      Model.Accepted.PanelNum = source_.Whole32();
      break;
    case 1:
      Model.Accepted.PanelNum = fewestOfMany + source_.Whole16() % (manyPanels - fewestOfMany + 1);
      break;
    default:
      Model.Accepted.PanelNum = source_.Byte() % (2 * fewPanels);
  }
  if (source_.Flag()) {
    // The loads follow, as they do in the program, where there can be any.
    constexpr Long mostWithLoads = 2000;
    if (Model.Accepted.PanelNum <= mostWithLoads) {
      MayFail(
          [&] { ReDimLoads(Model.Inputs.Loads, Model.Inputs.TreloType, Model.Accepted.PanelNum); });
    }
  }
}

void DesignSource::ChangeNumber() {
  constexpr std::array<double DesignInputs::*, 6> numbers{
      &DesignInputs::Ry,        &DesignInputs::Density,   &DesignInputs::ModulYung,
      &DesignInputs::LimitFlex, &DesignInputs::Nadegnost, &DesignInputs::UsloviyaRabot};
  Model.Inputs.*numbers.at(source_.Below(numbers.size())) = source_.Number();
}

BoundedArray<double>& DesignSource::SomeLoads() {
  constexpr std::array<BoundedArray<double> LoadArrays::*, 4> arrays{
      &LoadArrays::UpPForce, &LoadArrays::UpDistForce, &LoadArrays::DwnPForce,
      &LoadArrays::DwnDistForce};
  return Model.Inputs.Loads.*arrays.at(source_.Below(arrays.size()));
}

void DesignSource::ChangeLoads() {
  BoundedArray<double>& loads = SomeLoads();
  switch (source_.Below(4)) {
    case 0:
      loads = {};
      break;
    case 1: {
      const Long lower = source_.Byte() % 4 - 1;
      loads = BoundedArray<double>(lower, lower + source_.Byte() % 40 - 1);
      break;
    }
    default: {
      const double load = source_.Number();
      for (double& each : loads) {
        each = load;
      }
    }
  }
}

void DesignSource::ChangeLoad() {
  BoundedArray<double>& loads = SomeLoads();
  const Long place = source_.Byte();
  const double load = source_.Number();
  MayFail([&] { loads[place] = load; });
}

SectionRec& DesignSource::SomeSection() {
  return Model.Inputs.ElementSection[static_cast<Long>(source_.Below(sectionCount)) + 1];
}

void DesignSource::ChangeSection() {
  SectionRec& section = SomeSection();
  switch (source_.Below(5)) {
    case 0:
      section.Gdist = source_.Number();
      break;
    case 1:
      section.Layout = source_.Byte() % (sectionLayoutCount + 3) - 1;
      break;
    case 2:
      section.Paired = source_.Flag();
      break;
    case 3:
      section.TypeIdx = source_.Byte() % 25 - 1;
      section.SizeIdx = source_.Whole16();
      break;
    default:
      section.TypeIdx = source_.Byte() % 22 + 1;
      section.SizeIdx = source_.Whole16() & 0xFF;
  }
  MayFail([&] { section.Profile = ShippedCatalogue()[section.TypeIdx].Rec[section.SizeIdx]; });
}

void DesignSource::ChangeRecord() {
  SectionRec& section = SomeSection();
  section.Profile.*profileFields.at(source_.Below(profileFields.size())).Number = source_.Number();
}

void DesignSource::ChangeOptions() {
  constexpr std::array<const char*, 8> limits{"1 / 250", "1 / 120", "1 / 0",     "",
                                              "1 / ",    "1/250",   "1 / 1E400", "1 / -5"};
  DesignInputs& inputs = Model.Inputs;
  const std::uint8_t flags = source_.Byte();
  inputs.ProgibOn = flags & 1U ? 1 : 0;
  inputs.ProgibUpper = flags & 2U ? 1 : 0;
  inputs.OwnWeightOn = flags & 4U ? 1 : 0;
  inputs.DinloadOn = flags & 8U ? 1 : 0;
  Model.OwnWeight.Added = (flags & 16U) != 0;
  inputs.LenLim = limits.at(source_.Below(limits.size()));
  if (Model.OwnWeight.Added) {
    Model.OwnWeight.PerMetre = source_.Number();
  }
}

}  // namespace trelonit::fuzz
