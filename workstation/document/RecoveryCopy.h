#pragma once

#include <optional>
#include <string>

#include "catalogue/ProfileRecord.h"
#include "platform/text/NumberText.h"
#include "workstation/design/DesignState.h"

namespace trelonit {

/// A design that nobody has saved yet, for the case that nobody will.
struct RecoveryCopy {
  DesignState State;
  /// The project's file; empty for a project without one.
  std::string File;
  /// When it was made, as the user is told.
  std::string Time;
};

/// A project file with what a project file does not hold behind its lines, and a sum over all of
/// it.
std::string RecoveryText(const RecoveryCopy& copy, const NumberLocale& locale);

/// Nothing for bytes that are not the whole of such a text.
std::optional<RecoveryCopy> ReadRecovery(const std::string& bytes,
                                         const ProfileTypeArray& catalogue,
                                         const NumberLocale& locale);

}  // namespace trelonit
