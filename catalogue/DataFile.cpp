#include "catalogue/DataFile.h"

#include <array>

#include "catalogue/RecordCoding.h"

namespace trelonit {

BoundedArray<ProfileRec> ReadProfileRecords(std::istream& stream, std::uint64_t length) {
  const Long count =
      RoundToLong(static_cast<double>(length) / static_cast<double>(profileRecordSize));
  BoundedArray<ProfileRec> records(1, count);
  std::array<char, profileRecordSize> bytes{};
  for (ProfileRec& record : records) {
    stream.read(bytes.data(), bytes.size());
    record = DecodeProfileRecord({bytes.data(), static_cast<std::size_t>(stream.gcount())});
  }
  return records;
}

}  // namespace trelonit
