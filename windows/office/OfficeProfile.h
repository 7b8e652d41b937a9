#pragma once

#include <QString>

namespace trelonit {

/// Makes a user profile for LibreOffice in which no macro runs, no link is followed and no network
/// is reached. Raises as the file system does.
void WriteOfficeProfile(const QString& folder);

}  // namespace trelonit
