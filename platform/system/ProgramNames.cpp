#include "platform/system/ProgramNames.h"

// TRELONIT_VERSION comes from CMake.
#define TRELONIT_NAME "Трелонит"

namespace trelonit {

const char* const applicationTitle = TRELONIT_NAME;
const char* const applicationVersion = TRELONIT_VERSION;
const char* const runningTitle = TRELONIT_NAME " v " TRELONIT_VERSION;
const char* const warningTitle = TRELONIT_NAME " v " TRELONIT_VERSION " (alpha)";
const char* const debugTitle = TRELONIT_NAME " v " TRELONIT_VERSION " (alpha) отладка";

}  // namespace trelonit
