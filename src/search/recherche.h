#pragma once
#include "platform/parcours.h"

#include <cstddef>
#include <functional>
#include <string>

// What to look for in the disk tree kept.
struct Demande_recherche {
    std::wstring modele;          // completed patterns
    std::wstring exclus;          // empty for none
    bool         caches = false;  // hidden files too
};

struct Bilan_recherche {
    bool        entiere = false;  // false: ended before the last directory
    std::size_t sautes  = 0;      // directories that could not be read
};

// Lists every directory of the tree once and gives each file that matches. `continuer` is asked before each directory and
// now and then in a long one; it lets events run, false ends the search. Errors of the root (68, 70, 71, 76), or of a drive
// that is lost on the way (68, 71).
Bilan_recherche Rechercher(const Demande_recherche &                   demande,
                           const std::function<void(Fichier_trouve)> & trouver,
                           const std::function<bool()> &               continuer);
