#include "catalogue/SectionProvenance.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace trelonit {

namespace {

/// A standard of which some records rest on no published table. The names are designations or their
/// beginnings up to the wall.
struct Doubtful {
  std::string_view Standard;
  Provenance Of;
  std::span<const std::string_view> Names;
  /// The names are the published ones, all others are not.
  bool AllButNames = false;

  bool Has(const std::string& name) const {
    const bool named = std::any_of(Names.begin(), Names.end(), [&](std::string_view one) {
      return name == one || (one.ends_with('x') && name.starts_with(one));
    });
    return named != AllButNames;
  }
};

constexpr std::string_view equalAngles = "Уголок равнополочный по ГОСТ 8509-93";

constexpr std::array<std::string_view, 2> anglesInNoCopy{"L65x6", "L65x8"};
constexpr std::array<std::string_view, 1> angleWithComputedInertia{"L200x18"};
constexpr std::array<std::string_view, 1> firstOf17{"Тр63x3"};
constexpr std::array<std::string_view, 1> firstOf18{"Тр80x3"};
constexpr std::array<std::string_view, 1> firstOf19{"Тр63x32x2"};
constexpr std::array<std::string_view, 5> sizesBeyondTheHandbook{
    "Тр160x120x", "Тр180x60x", "Тр180x100x", "Тр180x140x", "Тр200x160x"};

constexpr std::array<Doubtful, 6> doubtful{{
    {equalAngles, Provenance::Reconstructed, anglesInNoCopy},
    {equalAngles, Provenance::Computed, angleWithComputedInertia},
    {"Квадратные трубы по ГОСТ 12336-66", Provenance::Reconstructed, firstOf17, true},
    {"Квадратные трубы по ТУ 36-2287-80", Provenance::Reconstructed, firstOf18, true},
    {"Прямоугольные трубы по ГОСТ 12336-66", Provenance::Reconstructed, firstOf19, true},
    {"Прямоугольные трубы по ТУ 67-2287-80", Provenance::Reconstructed, sizesBeyondTheHandbook},
}};

}  // namespace

Provenance ProvenanceOf(const ProfileRec& record) {
  const std::string standard = record.Type.Trimmed();
  const std::string name = record.Name.Trimmed();
  for (const Doubtful& row : doubtful) {
    if (row.Standard == standard && row.Has(name)) {
      return row.Of;
    }
  }
  return Provenance::Published;
}

}  // namespace trelonit
