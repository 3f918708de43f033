# 64-bit Windows from Linux, with the thread model that has std::thread.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

find_program(KORVANE_CC_WINDOWS x86_64-w64-mingw32-gcc-posix)
find_program(KORVANE_CXX_WINDOWS x86_64-w64-mingw32-g++-posix)
find_program(KORVANE_WINDRES x86_64-w64-mingw32-windres)
if(NOT KORVANE_CC_WINDOWS OR NOT KORVANE_CXX_WINDOWS OR NOT KORVANE_WINDRES)
    message(FATAL_ERROR "The Windows compiler is missing: install the package g++-mingw-w64-x86-64.")
endif()
set(CMAKE_C_COMPILER "${KORVANE_CC_WINDOWS}")  # GoogleTest asks for one
set(CMAKE_CXX_COMPILER "${KORVANE_CXX_WINDOWS}")
set(CMAKE_RC_COMPILER "${KORVANE_WINDRES}")

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
