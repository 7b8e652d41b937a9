#pragma once

#include "fuzz/support/ByteSource.h"
#include "workstation/design/DesignModel.h"

namespace trelonit::fuzz {

/// A truss of 12 m with few panels that is sound in all, changed by the bytes step by step. No
/// bytes change nothing, so that every step of a case can be left out to make it simpler.
class DesignSource {
 public:
  /// With more panels some routines take as long as the square of them and more.
  static constexpr Long fewPanels = 8;

  explicit DesignSource(ByteSource& source);

  DesignModel Model;

 private:
  void SetUp(Long scheme);
  void Step();
  void ChangeScheme();
  void ChangeSize();
  void ChangePanels();
  void ChangeNumber();
  void ChangeLoads();
  void ChangeLoad();
  void ChangeSection();
  void ChangeRecord();
  void ChangeOptions();
  SectionRec& SomeSection();
  BoundedArray<double>& SomeLoads();

  ByteSource& source_;
};

}  // namespace trelonit::fuzz
