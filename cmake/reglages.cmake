# What every target is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)

set(KORVANE_SANITIZE "" CACHE STRING "Sanitizers of the native builds, such as address,undefined")
option(KORVANE_FUZZ "Build the fuzz targets (clang++)" OFF)

find_program(KORVANE_CCACHE ccache)
if(KORVANE_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${KORVANE_CCACHE}")
endif()

if(KORVANE_SANITIZE)
    add_compile_options(-fsanitize=${KORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KORVANE_SANITIZE})
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# Warnings are errors everywhere but in code that is not ours.
add_library(reglages INTERFACE)
target_compile_options(reglages INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror>)
target_include_directories(reglages INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(WIN32)
    target_compile_definitions(reglages INTERFACE WINVER=0x0601 _WIN32_WINNT=0x0601)
    target_compile_options(reglages INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-ffunction-sections -fdata-sections>)
    target_link_options(reglages INTERFACE -static -Wl,--gc-sections)
endif()

# A folder searched first, whose <windows.h> is an error: for everything outside toolkit/ and platform/.
add_library(sans_windows INTERFACE)
target_include_directories(sans_windows BEFORE INTERFACE "${CMAKE_SOURCE_DIR}/cmake/interdit")
