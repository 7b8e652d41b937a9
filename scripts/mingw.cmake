# Programs for 64-bit Windows, made by Debian's mingw-w64; what runs during the build runs in wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The thread model of POSIX is the one with std::thread and std::mutex.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# TRELONIT_MINGW_HEADERS: a prefix with the header-only libraries alone. This machine's own headers
# must stay out of sight.
# TRELONIT_MINGW_LIBRARIES: prefixes with libraries for Windows (Qt).
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TRELONIT_MINGW_HEADERS TRELONIT_MINGW_LIBRARIES)
set(CMAKE_FIND_ROOT_PATH
  /usr/x86_64-w64-mingw32 ${TRELONIT_MINGW_HEADERS} ${TRELONIT_MINGW_LIBRARIES})
if(NOT TRELONIT_MINGW_LIBRARIES)
  # Programs that need no library of the compiler's beside them. With Qt they share one: an error
  # has to pass through Qt's libraries.
  set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
