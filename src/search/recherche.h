#pragma once
#include "platform/parcours.h"
#include "search/arborescence.h"

#include <cstddef>
#include <functional>
#include <string>

// What to look for on a drive.
struct Demande_recherche {
    std::wstring modele;          // completed patterns
    std::wstring exclus;          // empty for none
    bool         caches = false;  // hidden files too
};

struct Bilan_recherche {
    bool        entiere = false;  // false: ended before the last directory
    std::size_t sautes  = 0;      // directories that could not be read
};

using Reception = std::function<void(Fichier_trouve)>;  // of each file found

// Lists every directory of the tree kept once and gives each file that matches. `continuer` is asked before each directory and
// now and then in a long one; it lets events run, false ends the search. Errors of the root (68, 70, 71, 76), or of a drive
// that is lost on the way (68, 71).
Bilan_recherche Rechercher(const Demande_recherche & demande, const Reception & trouver,
                           const std::function<bool()> & continuer);
// The same while the drive ("C:") is walked anew: one listing of each directory serves the tree and the search. `suivi`, the
// errors and what is left of the tree are those of Relever_arborescence.
Bilan_recherche Relever_et_rechercher(const std::wstring & unite, const Demande_recherche & demande,
                                      const Reception & trouver, const Suivi_parcours & suivi);
