#include "catalogue/DataFile.h"

#include <algorithm>
#include <array>

#include "catalogue/RecordCoding.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

Long CountProfileRecords(std::uint64_t length) {
  return RoundToLong(static_cast<double>(length) / static_cast<double>(profileRecordSize));
}

BoundedArray<ProfileRec> ReadProfileRecords(std::istream& stream, std::uint64_t length) {
  BoundedArray<ProfileRec> records(1, CountProfileRecords(length));
  std::array<char, profileRecordSize> bytes{};
  std::uint64_t left = length;
  for (ProfileRec& record : records) {
    const auto there = std::min<std::uint64_t>(left, bytes.size());
    stream.read(bytes.data(), static_cast<std::streamsize>(there));
    // A record that could not be read must not pass for a blank one: whoever writes the records
    // back would wipe out the user's.
    if (static_cast<std::uint64_t>(stream.gcount()) != there) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    record = DecodeProfileRecord({bytes.data(), static_cast<std::size_t>(there)});
    left -= there;
  }
  return records;
}

}  // namespace trelonit
