#pragma once

namespace trelonit {

// The program's name and version, which is that of the project in CMakeLists.txt.

/// For its own windows and message boxes without a title.
extern const char* const applicationTitle;
extern const char* const applicationVersion;

/// Title of the running caption.
extern const char* const runningTitle;

/// Title of the program's own warnings.
extern const char* const warningTitle;

/// Title of warnings about the state of the program itself.
extern const char* const debugTitle;

}  // namespace trelonit
