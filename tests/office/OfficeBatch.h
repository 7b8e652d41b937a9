#pragma once

#include <string>
#include <vector>

namespace trelonit::test {

/// Lets LibreOffice convert many documents in one run, for its start takes longest. The extensions
/// say the formats; the filter is the program's name for the writer of the second one. The results
/// stand in the order of the sources; one that is missing is empty. Fails the test where the
/// program is absent or gives up.
std::vector<std::string> ConvertAll(const std::vector<std::string>& sources,
                                    const std::string& fromExtension,
                                    const std::string& toExtension, const std::string& filter);

}  // namespace trelonit::test
