#pragma once

// The system's own header, which brings COM's along, without the macro that would rename a member
// of the file service.

#include <windows.h>

#undef ReplaceFile
