#pragma once

#include <string>
#include <vector>

#include "catalogue/ProfileRecord.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// One finding of the catalogue's health check.
struct Deviation {
  Long TypeIdx = 0;      ///< the standard's subscript in the catalogue
  Long SizeIdx = 0;      ///< the record's subscript in the standard; 0 for the standard as a whole
  std::string Standard;  ///< name of the standard
  std::string Name;      ///< designation of the record
  /// "A", "Jy" or "Jz" for a figure that deviates. Otherwise the numbers below are 0 and this says
  /// why nothing could be compared: "standard" (a standard outside 1 to 22, whose geometry nobody
  /// told), "empty" (a record without name and numbers, or a standard without records),
  /// "dimensions" (dimensions that make no section) or "numbers" (A, Jy or Jz is no finite number
  /// or beyond every comparison).
  std::string Quantity;
  double Stored = 0;    ///< cm2 or cm4
  double Computed = 0;  ///< from the dimensions; where corners may vary, the nearest that they give
  double Percent = 0;   ///< (Stored - Computed) / Computed
  double Tolerance = 0;  ///< what the record was allowed, percent of Computed
};

/// Recomputes A, Jy and Jz of every record from its dimensions, by the rules of its standard, and
/// lists in catalogue order what deviates by more than the standard's published table explains.
/// Never fails: whatever stands in the records ends as a line of the list.
std::vector<Deviation> VerifyCatalogue(const ProfileTypeArray& catalogue);

/// The same for one record of a standard.
std::vector<Deviation> VerifyRecord(Long typeIdx, const ProfileRec& record);

}  // namespace trelonit
