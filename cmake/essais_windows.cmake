# Tests that need Windows, their helper programs, and the measurements.
file(GLOB mesures CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/bench/*.cpp")
foreach(source IN LISTS mesures)
    get_filename_component(nom "${source}" NAME_WE)
    add_executable(${nom} "${source}")
    target_link_libraries(${nom} PRIVATE gestionnaire boite_a_outils services logique)
    korvane_entree(${nom})
endforeach()

file(GLOB pilote CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/pilote/*.cpp")
if(pilote AND TARGET gtest)
    add_library(pilote STATIC ${pilote})
    target_include_directories(pilote PUBLIC "${CMAKE_SOURCE_DIR}/tests")
    target_link_libraries(pilote PUBLIC reglages GTest::gtest gdi32 user32 shell32 winspool)
endif()

# Programs cut at their calls to the system.
file(GLOB coupures CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/coupures/*.cpp")
add_library(coupures STATIC ${coupures})
target_include_directories(coupures PUBLIC "${CMAKE_SOURCE_DIR}/tests")
target_link_libraries(coupures PUBLIC gestionnaire boite_a_outils services)

# One small program a file: stand-ins for what the program starts, keepers of the desktop, demonstrations.
file(GLOB outils CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/outils_windows/*.cpp")
foreach(source IN LISTS outils)
    get_filename_component(nom "${source}" NAME_WE)
    add_executable(${nom} WIN32 "${source}")
    target_link_libraries(${nom} PRIVATE reglages gdi32 user32 shell32)
    if(TARGET pilote)
        target_link_libraries(${nom} PRIVATE pilote)
    endif()
    korvane_entree(${nom})
endforeach()
# This one shows the program's own windows.
if(TARGET vitrine)
    target_link_libraries(vitrine PRIVATE gestionnaire boite_a_outils services)
endif()
# This one does what the program does to files.
if(TARGET coupeur)
    target_link_libraries(coupeur PRIVATE coupures)
endif()

if(NOT TARGET gtest)
    return()
endif()

file(GLOB essais CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/services/*.cpp")
if(essais AND TARGET pilote)
    add_executable(tests_services ${essais})
    target_include_directories(tests_services PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_link_libraries(tests_services PRIVATE pilote coupures gestionnaire boite_a_outils services logique GTest::gtest_main)
    add_dependencies(tests_services coupeur)
endif()

file(GLOB essais CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/fenetres/*.cpp")
if(essais AND TARGET pilote)
    add_executable(tests_fenetres ${essais})
    target_link_libraries(tests_fenetres PRIVATE pilote GTest::gtest_main)
endif()
