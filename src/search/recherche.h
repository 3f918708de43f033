#pragma once
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

// Lists every directory of the tree once and gives the full path, in lower case, of each file that matches.
// `continuer` is asked before each directory and now and then in a long one; it lets events run, false ends the
// search. Errors of the root itself: 68, 70, 71, 76.
Bilan_recherche Rechercher(const Demande_recherche &                         demande,
                           const std::function<void(const std::wstring &)> & trouver,
                           const std::function<bool()> &                     continuer);
