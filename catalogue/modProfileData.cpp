#include "catalogue/modProfileData.h"

#include <algorithm>
#include <cstdint>

#include "catalogue/DataFile.h"
#include "catalogue/RecordCoding.h"
#include "platform/errors/Guard.h"
#include "platform/files/Paths.h"
#include "platform/system/ProgramNames.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

std::string FindOrUnpack(const Services& services, std::string_view name, Integer resId,
                         Long size) {
  std::string path = JoinPath(services.ProgramFolder, name);
  if (services.Files.FileExists(path) || ResourceToFile(services, resId, path, size)) {
    return path;
  }
  return {};
}

/// A file of records of one size, whole in memory.
class RecordFile {
 public:
  /// Raises 6 for more records than an Integer counts, before anything is read.
  RecordFile(FileService& files, const std::string& path, std::size_t recordSize)
      : recordSize_(recordSize) {
    const std::unique_ptr<std::istream> stream = files.OpenForReading(path);
    const std::uint64_t length = files.FileLength(path);
    // Rounded, so that stray bytes behind the last record (the unpacked data file ends with one)
    // make no record of their own.
    count_ = RoundToInteger(static_cast<double>(length) / static_cast<double>(recordSize));
    bytes_.resize(static_cast<std::size_t>(length));
    stream->read(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
    if (stream->bad()) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    bytes_.resize(static_cast<std::size_t>(stream->gcount()));
  }

  Integer Count() const { return count_; }

  /// The bytes of a record, numbered from 1, as far as the file has them.
  std::string_view Record(Long number) const {
    const std::size_t offset = static_cast<std::size_t>(number - 1) * recordSize_;
    return std::string_view(bytes_).substr(std::min(offset, bytes_.size()), recordSize_);
  }

 private:
  std::size_t recordSize_;
  Integer count_;
  std::string bytes_;
};

/// The count of records that an index row claims.
std::int64_t ClaimedRecords(const IndexRec& row) {
  const std::int64_t claimed = static_cast<std::int64_t>(row.LastNum) - row.FirstNum + 1;
  if (row.FirstNum < 1 || claimed < 0) {
    RaiseSubscriptOutOfRange();
  }
  return claimed;
}

BoundedArray<ProfileRec> ReadStandard(const RecordFile& data, const IndexRec& row) {
  BoundedArray<ProfileRec> records(1, static_cast<Long>(ClaimedRecords(row)));
  const Long last = std::min<Long>(row.LastNum, data.Count());
  for (Long number = row.FirstNum; number <= last; ++number) {
    records[number - row.FirstNum + 1] = DecodeProfileRecord(data.Record(number));
  }
  return records;
}

}  // namespace

std::string ProfileDataFile(const Services& services) {
  // The bytes of 2698 records. ResourceToFile leaves one byte more, and that is intended: the
  // installed files have that stray byte at their end, and loading rounds it away.
  return FindOrUnpack(services, "GOST profile.dat", 102, 477546);
}

std::string ProfileIndexFile(const Services& services) {
  return FindOrUnpack(services, "Index.ind", 103, 1276);
}

bool ResourceToFile(const Services& services, Integer resId, const std::string& path, Long size) {
  const auto fail = [&services](const char* text) {
    services.Messages.Show({.Text = text});
    return false;
  };
  std::string_view block;
  if (!PassOver([&] { block = services.Resources.CustomBlock(resId); })) {
    return fail("Ошибка считывания из ресурсов ");
  }
  const std::int64_t last =
      std::min<std::int64_t>(static_cast<std::int64_t>(block.size()) - 1, size);
  if (last <= 0) {
    return fail("Ошибка : cчитано 0 байтов файла данных ");
  }
  const std::string_view bytes = block.substr(0, static_cast<std::size_t>(last) + 1);
  if (!PassOver([&] { services.Files.ReplaceFile(path, bytes); })) {
    return fail("Ошибка создания файла данных профиля ");
  }
  return true;
}

ProfileTypeArray LoadProfileTypes(const Services& services) {
  // Both paths first: a failure of one file does not keep the other from being unpacked.
  const std::string dataPath = ProfileDataFile(services);
  const std::string indexPath = ProfileIndexFile(services);
  const RecordFile data(services.Files, dataPath, profileRecordSize);
  const RecordFile index(services.Files, indexPath, indexRecordSize);

  ProfileTypeArray standards(1, index.Count());
  std::int64_t claimed = 0;
  for (Long number = 1; number <= index.Count(); ++number) {
    const IndexRec row = DecodeIndexRecord(index.Record(number));
    claimed += ClaimedRecords(row);
    if (claimed > mostCatalogueRecords) {
      RaiseOverflow();
    }
    standards[number].Name = row.Name;
    standards[number].Rec = ReadStandard(data, row);
  }
  return standards;
}

Long FindSizeIndex(MessageService& messages, const ProfileType& standard, std::string_view text) {
  const FixedText<15> name(text);
  Long found = 0;
  // Intended to go on after a match: of equal designations the last one is taken.
  for (Long size = 1; size <= standard.Rec.UpperBound(); ++size) {
    if (standard.Rec[size].Name == name) {
      found = size;
    }
  }
  if (found != 0) {
    return found;
  }
  messages.Show({.Title = debugTitle,
                 .Text = "Не найден типоразмер " + std::string(text) +
                         " перехожу в начало списка типоразмеров",
                 .Style = MessageStyle::Exclamation});
  return 1;
}

}  // namespace trelonit
