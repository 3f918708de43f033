#pragma once
#include "platform/erreur.h"
#include "platform/parcours.h"
#include "search/arbre.h"

#include <cstddef>
#include <functional>
#include <string>

// The tree of the last disk walked, kept for the next search and lookup.

// Called before each directory is read, with its index, and again now and then during a long one; false ends the
// walk. It lets events run.
using Suivi_parcours = std::function<bool(const Arbre & arbre, std::size_t index)>;

// Sees each entry of the directories walked while it is listed: the directories in the order of the tree, what each holds in
// the order of the system.
using Visite_parcours = std::function<void(const std::wstring & repertoire, const Entree_vue & entree)>;

const Arbre & Arborescence();
// Whether the tree kept is that of this drive ("C:") and its medium, and no directory was made, renamed or removed
// since by the program.
bool Arborescence_valide(const std::wstring & unite);
// Walks the drive again. Directories that cannot be read are skipped and counted, links are not followed. False
// when `suivi` ended the walk: what was walked stays and counts as the tree. Errors of the root (68, 70, 71, 76), or of
// a drive that is lost on the way (68, 71); nothing is kept then.
bool        Relever_arborescence(const std::wstring & unite, const Suivi_parcours & suivi,
                                 const Visite_parcours & visite = {});
bool        Arborescence_entiere();  // the last walk came to its end
std::size_t Repertoires_sautes();    // of the last walk
// What the failure to list the tree's directory `index` means. When the drive still answers and holds the medium that was
// walked, the directory is skipped: true when it is there and cannot be read, false when it is gone. Otherwise, and for
// the root, the tree is emptied and the error thrown, 71 where the medium is gone.
bool Repertoire_saute(const Erreur_execution & erreur, std::size_t index);
