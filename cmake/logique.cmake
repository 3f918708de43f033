# What needs no window: built natively and for Windows, never against <windows.h>.
set(KORVANE_SOURCES_LOGIQUE
    src/platform/chemins.cpp
    src/app/cles_profil.cpp
    src/app/libelles_erreur.cpp
    src/app/lignes_commande.cpp
    src/app/palette.cpp
    src/platform/nombres.cpp
    src/browser/groupe_boutons.cpp
    src/browser/ligne_selection.cpp
    src/config/ligne_conf.cpp
    src/config/valeurs_options.cpp
    src/fileops/jauge.cpp
    src/fileops/questions.cpp
    src/fileops/resume.cpp
    src/platform/motifs.cpp
    src/platform/numeros.cpp
    src/platform/utf8.cpp
    src/platform/valeur_profil.cpp
    src/recycle/fiche.cpp
    src/recycle/lignes.cpp
    src/recycle/purge.cpp
    src/recycle/tirage.cpp
    src/search/arbre.cpp
    src/search/modeles.cpp
    src/search/nom_repertoire.cpp
    src/texte/codage.cpp
    src/texte/lignes.cpp
    src/texte/mise_en_page.cpp
    src/visionneuse/arguments.cpp
    src/visionneuse/decodage.cpp
    src/visionneuse/index_lignes.cpp
    src/visionneuse/libelles.cpp
    src/visionneuse/octets.cpp
    src/visionneuse/rangees_hexa.cpp
    src/visionneuse/rangees_texte.cpp
    src/visionneuse/recherche.cpp)
list(TRANSFORM KORVANE_SOURCES_LOGIQUE PREPEND "${CMAKE_SOURCE_DIR}/")

add_library(logique STATIC ${KORVANE_SOURCES_LOGIQUE})
target_link_libraries(logique PUBLIC reglages PRIVATE sans_windows)
