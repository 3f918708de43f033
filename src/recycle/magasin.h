#pragma once
#include "platform/canal.h"
#include "recycle/fiche.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The two limits of the bin; with neither, nothing is purged.
struct Limites_corbeille {
    int taille = 0;  // kilobytes of 1024 bytes, 0 for none
    int temps  = 0;  // days, 0 for none
};

// A file to be stored.
struct Depot {
    std::wstring  nom;
    std::wstring  repertoire;  // with or without its final "\"
    std::uint64_t taille = 0;  // bytes
};

// The recycle bin on the disk: an index file and the files that it names, each left in its own directory under a coded name,
// hidden and read-only. It knows no window and no setting. At any instant, killed or without power, every file is at its place or in
// the index: a record is on the disk before its file takes the coded name, and leaves the index after.
//
// Errors are Erreur_execution; what holds after one is said at each function.
class Magasin {
public:
    // The index is opened in the first of these directories where it can be written ("C:\WINDOWS\system32"), created hidden
    // when there is none. What a crash left behind is mended: an unfinished rewrite, a torn last line. Not open after an error.
    void Ouvrir(const std::vector<std::wstring> & repertoires);
    void Fermer() noexcept;
    bool Ouvert() const;
    const std::wstring & Repertoire() const;  // of the index

    // The records whose file is there, oldest first, and the sum of their sizes.
    const std::vector<Fiche> & Fiches() const;
    std::uint64_t              Total() const;
    // Reads the index again, which another machine may have changed.
    void Relire();

    // Stores files from `premier` on. All records go to the disk together, then each file takes its coded name; `continuer` is asked
    // before each file but the first. `deposes` says how many were stored: less than all of them after an error and when `continuer`
    // said no. Read-only file: 75. All thousand names of the day taken in its directory: 58. The files stored before an error are in the
    // bin, the others where they were, and no record of theirs is left.
    void Deposer(const std::vector<Depot> & depots, std::int32_t jour, const std::function<bool()> & continuer,
                 std::size_t & deposes);
    // Destroys what the limits no longer allow, oldest first, and rewrites the index when it changed.
    void Purger(const Limites_corbeille & limites, std::int32_t jour);
    // Gives these files (indexes in Fiches) their names back. Those restored leave the index whatever happens to a later one; the first
    // error ends it.
    void Restaurer(const std::vector<std::size_t> & choix, const std::function<bool()> & continuer);
    // Every file of the index is destroyed, then the index. A file that cannot be destroyed stays in it, and its error is thrown.
    void Detruire();
};
