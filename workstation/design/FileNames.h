#pragma once

#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// Whether a file may be written under this name: there is none, or the user says Yes to writing it
/// over.
bool MayReplace(const std::string& name, const Services& services);

/// Asks for the name of a file to write. An existing file is written over only after the user's
/// Yes; on No the dialog comes again. An empty text is a cancel.
std::string ShowSaveDialog(const std::string& title, const std::string& extension,
                           const std::string& description, const Services& services);

/// Asks for the name of an existing file; an empty text where there is none.
std::string ShowOpenDialog(const std::string& title, const std::string& extension,
                           const std::string& description, const Services& services);

}  // namespace trelonit
