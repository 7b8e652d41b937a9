#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "workstation/design/DesignInputs.h"

namespace trelonit {

/// A way to compose a group's section: a layout and a standard that the program offers with it.
struct SectionKind {
  Long Layout = 0;
  Long Standard = 0;
};

struct SteelKind {
  std::string Name;
  double Ry = 0;  ///< MPa
};

/// What is to be tried. An axis without values stays as the base design has it.
struct VariantAxes {
  std::vector<Long> Schemes;
  std::vector<double> Spans;      ///< metres
  std::vector<double> Heights;    ///< metres
  std::vector<double> EndPanels;  ///< metres
  std::vector<Long> Panels;
  std::array<std::vector<SectionKind>, sectionCount> Kinds;  ///< by SectionPlace, from 0
  std::vector<double> Gaps;                                  ///< of paired sections, mm
  std::vector<SteelKind> Steels;
};

/// Every combination of the axes' values, in the order of the axes: the last one turns first.
class VariantSpace {
 public:
  /// Raises 5, with a text for the user, for a kind of section that the catalogue does not offer
  /// and for more than mostVariants.
  VariantSpace(DesignInputs base, VariantAxes axes, const ProfileTypeArray& catalogue);

  std::uint64_t Count() const { return count_; }

  /// The inputs of one variant, numbered from 0, with the base design's loads as yet. A group of
  /// another kind begins with the first size of its standard.
  DesignInputs At(std::uint64_t number) const;

  const DesignInputs& Base() const { return base_; }

 private:
  void PutKind(DesignInputs& inputs, Long place, const SectionKind& kind) const;

  DesignInputs base_;
  VariantAxes axes_;
  const ProfileTypeArray& catalogue_;
  std::uint64_t count_ = 1;
};

}  // namespace trelonit
