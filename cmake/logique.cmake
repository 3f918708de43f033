# What needs no window: built natively and for Windows, never against <windows.h>.
set(KORVANE_SOURCES_LOGIQUE
    src/platform/chemins.cpp
    src/app/cles_profil.cpp
    src/app/libelles_erreur.cpp
    src/platform/nombres.cpp
    src/browser/ligne_selection.cpp
    src/fileops/jauge.cpp
    src/fileops/questions.cpp
    src/platform/motifs.cpp
    src/platform/numeros.cpp)
list(TRANSFORM KORVANE_SOURCES_LOGIQUE PREPEND "${CMAKE_SOURCE_DIR}/")

add_library(logique STATIC ${KORVANE_SOURCES_LOGIQUE})
target_link_libraries(logique PUBLIC reglages PRIVATE sans_windows)
