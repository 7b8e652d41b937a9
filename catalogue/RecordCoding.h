#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "catalogue/ProfileFields.h"
#include "catalogue/ProfileRecord.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// Bytes of one record of the data file: Name (15), Type (50), fourteen Doubles. Texts are code
/// page 1251 padded with blanks, numbers are little-endian.
constexpr std::size_t profileRecordSize = 177;

/// Bytes of one record of the index file: Name (50), FirstNum and LastNum.
constexpr std::size_t indexRecordSize = 58;

/// A standard in the index: which records of the data file, numbered from 1, belong to it.
struct IndexRec {
  FixedText<50> Name;
  Long FirstNum = 0;
  Long LastNum = 0;

  friend bool operator==(const IndexRec&, const IndexRec&) = default;
};

/// Characters outside code page 1251 become "?"; numbers are written as they stand.
std::array<char, profileRecordSize> EncodeProfileRecord(const ProfileRec& record);
std::array<char, indexRecordSize> EncodeIndexRecord(const IndexRec& record);

/// Numbers are taken as they stand, infinities and NaN included. Bytes that a cut record lacks
/// leave blanks in a text and 0 in a number; bytes beyond the record are ignored. Never fail.
ProfileRec DecodeProfileRecord(std::string_view bytes);
IndexRec DecodeIndexRecord(std::string_view bytes);

}  // namespace trelonit
