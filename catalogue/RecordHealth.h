#pragma once

#include <string>

#include "catalogue/ProfileRecord.h"
#include "platform/text/NumberText.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// What the dimensions of a record say of its figures, for the user.
struct RecordHealth {
  /// Whether the figures agree with the dimensions.
  bool Sound = false;
  std::string Text;
};

/// Of a record of this standard of the catalogue; 0 for one that the catalogue does not have.
RecordHealth JudgeRecord(Long standard, const ProfileRec& record, const NumberLocale& locale);

}  // namespace trelonit
