#include "bench/Designs.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "analysis/Scheme.h"

namespace trelonit::bench {

TreloData LoadedTruss(Long scheme, Long panelNum) {
  TreloData data;
  data.TreloType = scheme;
  data.PanelNum = panelNum;
  data.LengthF = 36;
  data.Hight = 3.6;
  data.LenOporn = scheme == 3 ? data.LengthF / panelNum : 1.5;
  data.UpPoyasBrace = 2;
  data.DownPoyasBrace = 2;
  static_cast<LoadArrays&>(data) = ZeroLoads(*BoundsOfLoads(scheme, panelNum));
  double load = 0.1;
  for (BoundedArray<double>* array :
       {&data.UpPForce, &data.UpDistForce, &data.DwnPForce, &data.DwnDistForce}) {
    for (double& element : *array) {
      element = load;
      load += 0.001;
    }
  }
  return data;
}

SectionArray PairedAngles(const ProfileTypeArray& catalogue) {
  SectionArray sections(1, sectionCount);
  for (SectionRec& section : sections) {
    section = {.TypeIdx = 2, .SizeIdx = 90, .Gdist = 10, .Paired = true, .Layout = 2};
    section.Profile = catalogue[section.TypeIdx].Rec[section.SizeIdx];
  }
  // A single angle keeps the check of scheme 3, which has no verticals, quiet.
  sections[sectionStoyka].Layout = 1;
  return sections;
}

CheckNumbers OrdinarySteel() {
  return {.Ry = 240, .E = 210000, .Yc = 0.9, .Gn = 1, .Density = 7.85, .LimitUser = 150};
}

World::World() : folder_(std::filesystem::temp_directory_path() / "trelonit-bench") {
  std::filesystem::create_directories(folder_);
}

Services World::Bundle() {
  return {Messages, dialogs_, clipboard_, settings_, registry_, automation_,
          shell_,   clock_,   resources_, files_,    {},        folder_};
}

MessageAnswer World::NoMessages::Show(const Message& message) {
  std::cerr << message.Title << ": " << message.Text << '\n';
  std::exit(1);
}

}  // namespace trelonit::bench
