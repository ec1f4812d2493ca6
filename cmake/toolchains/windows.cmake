# Cross build for 64-bit Windows with MinGW-w64 and the SDK that scripts/windows/sdk puts into the user's cache.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 10.0)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

# The posix thread model: with the win32 one, GCC 12 has no std::thread.
set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

if(DEFINED ENV{RYX_WINDOWS_SDK})
    set(RYX_WINDOWS_SDK "$ENV{RYX_WINDOWS_SDK}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(RYX_WINDOWS_SDK "$ENV{XDG_CACHE_HOME}/velmora-ryx/windows-sdk")
else()
    set(RYX_WINDOWS_SDK "$ENV{HOME}/.cache/velmora-ryx/windows-sdk")
endif()
if(NOT EXISTS "${RYX_WINDOWS_SDK}/.stamp")
    message(FATAL_ERROR "No Windows SDK in ${RYX_WINDOWS_SDK}: run scripts/windows/sdk first.")
endif()

set(CMAKE_PREFIX_PATH "${RYX_WINDOWS_SDK}")
set(CMAKE_FIND_ROOT_PATH "${RYX_WINDOWS_SDK}" "/usr/${triple}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# CTest starts the test executables through this script; it sets up what a Windows program needs under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../../scripts/windows/wine-run")
