#include "fuzz/catalogue/CatalogueInvariants.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <sstream>

#include "catalogue/CatalogueHealth.h"
#include "catalogue/DataFile.h"
#include "catalogue/RecordCoding.h"
#include "catalogue/SectionComposition.h"
#include "catalogue/SectionLayouts.h"
#include "catalogue/SectionProvenance.h"
#include "catalogue/frmDataManager.h"
#include "catalogue/modProfileData.h"
#include "fuzz/support/ByteSource.h"
#include "fuzz/support/FuzzWorld.h"

namespace trelonit::fuzz {

namespace {

constexpr const char* dataFile = "/program/GOST profile.dat";
constexpr const char* indexFile = "/program/Index.ind";

std::string BytesOf(const ProfileRec& record) {
  const auto bytes = EncodeProfileRecord(record);
  return {bytes.begin(), bytes.end()};
}

std::string ComplaintAboutRecord(const ProfileRec& record) {
  const std::string bytes = BytesOf(record);
  if (BytesOf(DecodeProfileRecord(bytes)) != bytes) {
    return "a record does not survive its writing";
  }
  ProvenanceOf(record);
  for (Long layout = 0; layout <= sectionLayoutCount + 1; ++layout) {
    SectionProps props;
    MayFail([&] { props = ComposeSection({.Profile = record, .Layout = layout}); });
    if (!std::isfinite(props.Area) || !std::isfinite(props.Jin) || !std::isfinite(props.Jout)) {
      return "a section's property is no number";
    }
  }
  return {};
}

std::string ComplaintAboutHealth(const ProfileTypeArray& catalogue) {
  for (const Deviation& deviation : VerifyCatalogue(catalogue)) {
    const ProfileType& standard = catalogue[deviation.TypeIdx];
    if (deviation.SizeIdx != 0) {
      // Raises 9 for a record that is not there.
      static_cast<void>(standard.Rec[deviation.SizeIdx]);
    }
    if (!std::isfinite(deviation.Stored) || !std::isfinite(deviation.Computed) ||
        !std::isfinite(deviation.Percent) || !std::isfinite(deviation.Tolerance)) {
      return "a deviation is no number";
    }
  }
  return {};
}

std::string ComplaintAboutCatalogue(const ProfileTypeArray& catalogue) {
  constexpr std::size_t mostLookedAt = 40;
  std::size_t lookedAt = 0;
  for (const ProfileType& standard : catalogue) {
    for (const ProfileRec& record : standard.Rec) {
      if (++lookedAt > mostLookedAt) {
        return ComplaintAboutHealth(catalogue);
      }
      if (std::string complaint = ComplaintAboutRecord(record); !complaint.empty()) {
        return complaint;
      }
    }
  }
  return ComplaintAboutHealth(catalogue);
}

/// The rows of an index, none of which claims more records than tell something: each costs as much
/// as a record that the file has, and a row may claim 32,767 of them.
std::string WithShortClaims(std::string_view rows) {
  constexpr std::int64_t mostClaimed = 40;
  std::string index(rows);
  for (std::size_t end = indexRecordSize; end <= index.size(); end += indexRecordSize) {
    IndexRec row = DecodeIndexRecord(rows.substr(end - indexRecordSize, indexRecordSize));
    if (std::int64_t{row.LastNum} - row.FirstNum >= mostClaimed) {
      row.LastNum = static_cast<Long>(row.FirstNum + mostClaimed - 1);
      const auto bytes = EncodeIndexRecord(row);
      std::copy_n(bytes.end() - sizeof row.LastNum, sizeof row.LastNum,
                  index.begin() + static_cast<std::ptrdiff_t>(end - sizeof row.LastNum));
    }
  }
  return index;
}

/// Works through the file in its editor, which must leave what it cannot know.
std::string ComplaintAboutManager(test::World& world) {
  const std::string before = world.Files.Content[dataFile];
  frmDataManager form(world.Bundle(), [] {});
  form.Form_Load();
  world.Dialogs.Names = {dataFile};
  form.cmdLoadDB_Click();
  form.cmdForv_Click();
  form.cmdForv100_Click();
  form.cmdPrew100_Click();
  form.cmdPrew_Click();
  form.cmdLastpoz_Click();
  form.cmdFirst_Click();
  form.cmdEditCurrent_Click();
  const std::string edited = world.Files.Content[dataFile];
  if (form.TotalPos > 0 && edited.size() > profileRecordSize && before.size() == edited.size() &&
      edited.substr(profileRecordSize) != before.substr(profileRecordSize)) {
    return "an edit of the first record changes another one";
  }
  world.Dialogs.Names = {dataFile};
  form.CheckueDB_Click();
  return {};
}

}  // namespace

std::string ComplaintAboutCatalogue(std::string_view bytes) {
  return ComplaintUnless([&] {
    // The first byte tells the rows of the index, which come next, and whether they claim what they
    // like; the rest is the data file.
    const std::uint8_t what = ByteSource(bytes).Byte();
    constexpr std::uint8_t anyClaim = 0xE0;
    const std::size_t rows = what % 32;
    const std::string_view files = bytes.substr(std::min<std::size_t>(1, bytes.size()));
    const std::size_t index = std::min(files.size(), rows * indexRecordSize);
    NoResources resources;
    test::World world(resources);
    world.Files.Content[indexFile] = (what & anyClaim) == anyClaim
                                         ? std::string(files.substr(0, index))
                                         : WithShortClaims(files.substr(0, index));
    world.Files.Content[dataFile] = files.substr(index);

    std::istringstream stream(world.Files.Content[dataFile]);
    const std::uint64_t length = files.size() - index;
    MayFail([&] { ReadProfileRecords(stream, length); });
    std::optional<ProfileTypeArray> catalogue;
    MayFail([&] { catalogue = LoadProfileTypes(world.Bundle()); });
    std::string complaint;
    if (catalogue) {
      complaint = ComplaintAboutCatalogue(*catalogue);
    }
    if (complaint.empty()) {
      complaint = ComplaintAboutManager(world);
    }
    return complaint.empty() ? ComplaintAboutMessages(world.Messages.Shown) : complaint;
  });
}

}  // namespace trelonit::fuzz
