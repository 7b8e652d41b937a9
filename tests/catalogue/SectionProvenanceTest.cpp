#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

#include "catalogue/SectionProvenance.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit::test {
namespace {

/// What the shipped catalogue rests on, beside what resources/catalogue/SOURCES.md says of it.
class SectionProvenance : public ::testing::Test {
 protected:
  SectionProvenance() : types(world.Load()) {}

  std::set<std::string> NamesOf(Long standard, Provenance provenance) const {
    std::set<std::string> names;
    for (const ProfileRec& record : types[standard].Rec) {
      if (ProvenanceOf(record) == provenance) {
        names.insert(record.Name.Trimmed());
      }
    }
    return names;
  }
  std::size_t CountOf(Long standard, Provenance provenance) const {
    return static_cast<std::size_t>(std::count_if(
        types[standard].Rec.begin(), types[standard].Rec.end(),
        [&](const ProfileRec& record) { return ProvenanceOf(record) == provenance; }));
  }

  CatalogueWorld world;
  ProfileTypeArray types;
};

using Names = std::set<std::string>;

TEST_F(SectionProvenance, CountsTheReconstructedSizesOfEveryStandard) {
  const std::map<Long, std::size_t> reconstructed{{2, 2}, {17, 51}, {18, 25}, {19, 83}, {20, 20}};
  for (Long standard = 1; standard <= types.UpperBound(); ++standard) {
    const auto found = reconstructed.find(standard);
    EXPECT_EQ(CountOf(standard, Provenance::Reconstructed),
              found == reconstructed.end() ? 0U : found->second)
        << standard;
  }
}

TEST_F(SectionProvenance, NamesTheThreeAngles) {
  constexpr Long equalAngles = 2;
  EXPECT_EQ(NamesOf(equalAngles, Provenance::Reconstructed), (Names{"L65x6", "L65x8"}));
  EXPECT_EQ(NamesOf(equalAngles, Provenance::Computed), Names{"L200x18"});
  for (Long standard = 1; standard <= types.UpperBound(); ++standard) {
    if (standard != equalAngles) {
      EXPECT_EQ(CountOf(standard, Provenance::Computed), 0U) << standard;
    }
  }
}

TEST_F(SectionProvenance, TakesOnlyTheFirstSizeOfThreeStandardsForPublished) {
  for (const Long standard : {17, 18, 19}) {
    EXPECT_EQ(NamesOf(standard, Provenance::Published),
              Names{types[standard].Rec[1].Name.Trimmed()})
        << standard;
  }
}

TEST_F(SectionProvenance, TakesTheSizesOfTheHandbookForPublished) {
  // 19 of the 39 sizes; five outlines, with every wall, are in no copy.
  constexpr Long rectangularTubes = 20;
  EXPECT_EQ(CountOf(rectangularTubes, Provenance::Published), 19U);
  Names outlines;
  for (const std::string& name : NamesOf(rectangularTubes, Provenance::Reconstructed)) {
    outlines.insert(name.substr(0, name.rfind('x')));
  }
  EXPECT_EQ(outlines, (Names{"Тр160x120", "Тр180x60", "Тр180x100", "Тр180x140", "Тр200x160"}));
  for (const std::string& name : NamesOf(rectangularTubes, Provenance::Published)) {
    EXPECT_EQ(outlines.count(name.substr(0, name.rfind('x'))), 0U) << name;
  }
}

TEST_F(SectionProvenance, KnowsARecordByStandardAndName) {
  // The same designation of another standard is published.
  ProfileRec record = types[18].Rec[2];
  EXPECT_EQ(ProvenanceOf(record), Provenance::Reconstructed);
  record.Type = types[15].Name;
  EXPECT_EQ(ProvenanceOf(record), Provenance::Published);
  // So is what a user has named himself.
  record.Type = "Мой стандарт";
  EXPECT_EQ(ProvenanceOf(record), Provenance::Published);
  EXPECT_EQ(ProvenanceOf(ProfileRec()), Provenance::Published);
}

}  // namespace
}  // namespace trelonit::test
