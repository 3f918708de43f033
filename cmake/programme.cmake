# The program: one library a layer, so that each is linked into the tests that need no more than it.

# Sources of some folders of src/, less the logic.
function(korvane_sources resultat)
    set(tous)
    foreach(dossier IN LISTS ARGN)
        file(GLOB trouves CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${dossier}/*.cpp")
        list(APPEND tous ${trouves})
    endforeach()
    list(REMOVE_ITEM tous ${KORVANE_SOURCES_LOGIQUE})
    set(${resultat} "${tous}" PARENT_SCOPE)
endfunction()

function(korvane_couche nom)
    korvane_sources(sources ${ARGN})
    add_library(${nom} STATIC ${sources})
    target_link_libraries(${nom} PUBLIC logique)
endfunction()

# Wide entry points need the wide start-up code; the others do not link with it.
function(korvane_entree cible)
    get_target_property(sources ${cible} SOURCES)
    foreach(source IN LISTS sources)
        if(source MATCHES "\\.cpp$" AND EXISTS "${source}")
            set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
            file(STRINGS "${source}" large REGEX "wWinMain *\\(|wmain *\\(")
            if(large)
                target_link_options(${cible} PRIVATE -municode)
                return()
            endif()
        endif()
    endforeach()
endfunction()

korvane_couche(services platform)
korvane_couche(boite_a_outils toolkit)
korvane_couche(gestionnaire app browser fileops recycle search config forms)
korvane_couche(visionneuse visionneuse)

target_link_libraries(services PUBLIC gdi32 mpr shell32 version winspool)
target_link_libraries(boite_a_outils PUBLIC services comctl32 comdlg32 gdi32 user32 uxtheme)
target_link_libraries(gestionnaire PUBLIC boite_a_outils PRIVATE sans_windows)
target_link_libraries(visionneuse PUBLIC boite_a_outils services PRIVATE sans_windows)

# The icon of a program, drawn once and made into every size that the system asks for.
function(korvane_icone cible nom)
    find_program(KORVANE_RSVG rsvg-convert)
    find_program(KORVANE_ICOTOOL icotool)
    if(NOT KORVANE_RSVG OR NOT KORVANE_ICOTOOL)
        message(WARNING "No rsvg-convert or no icotool (packages librsvg2-bin, icoutils): "
                        "the program is built without its icon.")
        return()
    endif()
    set(dessin "${CMAKE_SOURCE_DIR}/src/ressources/${nom}.svg")
    set(icone "${CMAKE_BINARY_DIR}/ressources/${nom}.ico")
    set(commandes)
    set(images)
    foreach(cote IN ITEMS 16 24 32 48 64 256)
        set(image "${CMAKE_BINARY_DIR}/ressources/${nom}-${cote}.png")
        list(APPEND commandes COMMAND "${KORVANE_RSVG}" -w ${cote} -h ${cote} -o "${image}" "${dessin}")
        if(cote EQUAL 256)
            list(APPEND images -r)
        endif()
        list(APPEND images "${image}")
    endforeach()
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/ressources")
    add_custom_command(OUTPUT "${icone}" ${commandes}
        COMMAND "${KORVANE_ICOTOOL}" -c -o "${icone}" ${images}
        DEPENDS "${dessin}" COMMENT "Icon ${nom}.ico" VERBATIM)
    target_compile_definitions(${cible} PRIVATE $<$<COMPILE_LANGUAGE:RC>:AVEC_ICONE>)
    set_property(SOURCE "${CMAKE_SOURCE_DIR}/src/ressources/${nom}.rc" APPEND PROPERTY OBJECT_DEPENDS "${icone}")
endfunction()

enable_language(RC)

# A program: its entry point, its resources, all that it needs in one file.
function(korvane_programme cible nom)
    set(ressources "${CMAKE_SOURCE_DIR}/src/ressources/${nom}.rc")
    add_executable(${cible} WIN32 "${CMAKE_SOURCE_DIR}/src/${nom}.cpp" "${ressources}")
    set_source_files_properties("${ressources}" PROPERTIES
        COMPILE_OPTIONS "-c;65001"
        INCLUDE_DIRECTORIES "${CMAKE_BINARY_DIR}/ressources;${CMAKE_SOURCE_DIR}/src/ressources"
        OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/src/ressources/${nom}.manifest")
    set_target_properties(${cible} PROPERTIES OUTPUT_NAME ${cible} SUFFIX ".EXE")
    target_link_libraries(${cible} PRIVATE ${ARGN})
    target_link_options(${cible} PRIVATE -s)
    korvane_icone(${cible} ${nom})
    korvane_entree(${cible})
endfunction()

korvane_programme(KORVANE korvane gestionnaire boite_a_outils services)
# The viewer that comes with it.
korvane_programme(PELMIRA pelmira visionneuse boite_a_outils services)

# Every header compiles alone. Only those of the two system layers may reach <windows.h>.
file(GLOB_RECURSE entetes CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}/src" "${CMAKE_SOURCE_DIR}/src/*.h")
set(entetes_systeme)
set(entetes_autres)
foreach(entete IN LISTS entetes)
    string(REPLACE "/" "_" nom "${entete}")
    set(seul "${CMAKE_BINARY_DIR}/entetes/${nom}.cpp")
    file(CONFIGURE OUTPUT "${seul}" CONTENT "#include \"${entete}\"\n#include \"${entete}\"\n")
    if(entete MATCHES "^(toolkit|platform)/")
        list(APPEND entetes_systeme "${seul}")
    else()
        list(APPEND entetes_autres "${seul}")
    endif()
endforeach()
add_library(entetes_systeme OBJECT ${entetes_systeme})
target_link_libraries(entetes_systeme PRIVATE reglages)
add_library(entetes OBJECT ${entetes_autres})
target_link_libraries(entetes PRIVATE reglages sans_windows)
