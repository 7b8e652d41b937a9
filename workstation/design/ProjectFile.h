#pragma once

#include <string>

#include "catalogue/ProfileRecord.h"
#include "platform/system/Services.h"
#include "workstation/design/DesignInputs.h"

namespace trelonit {

/// Extension of project files, without its point.
constexpr const char* projectExtension = "tsav";

/// Lines of a project file.
constexpr int projectLineCount = 53;

/// The text of a project file in code page 1251: one quoted value a line, nothing escaped.
std::string ProjectText(const DesignInputs& record, const NumberLocale& locale);

/// Whether the bytes have all the lines of a project and begin as one; what it says may still be
/// nonsense.
bool IsProjectText(const std::string& bytes);

/// The record of such a text. Damaged fields are 0 or repeat the last text that could be read. The
/// catalogue records of the sections are fetched by their indices.
DesignInputs ProjectOfText(const std::string& bytes, const ProfileTypeArray& catalogue,
                           const NumberLocale& locale);

/// Puts the project in the place of the file. A file that cannot be made is told to the user; what
/// was there before stays whole then. Returns whether the file was made.
bool WriteApplParameters(const std::string& fileName, const DesignInputs& record,
                         const Services& services);

/// Reads a project. A damaged file never stops the reading: it gives messages and a record in which
/// the damaged fields are 0 or repeat the last text that could be read. The catalogue records of
/// the sections are fetched anew by their indices.
DesignInputs ReadApplParameters(const std::string& fileName, const ProfileTypeArray& catalogue,
                                const Services& services);

}  // namespace trelonit
