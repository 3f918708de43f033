#pragma once
#include "recycle/codes.h"
#include "recycle/fiche.h"
#include "recycle/index.h"
#include "recycle/purge.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <vector>

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
// Errors are Erreur_execution; what holds after one is said at each function. Programs that share an index take turns.
class Magasin {
public:
    // `entretemps` is called again and again while another program has its turn.
    explicit Magasin(std::function<void()> entretemps = {});

    // The index is opened in the first of these directories where it may be written ("C:\WINDOWS\system32"), created hidden
    // when there is none; the directories after the first are made when missing. What the later ones hold from a time when it
    // could not be written joins it. What a crash left behind is mended: an unfinished rewrite, a torn last line, a directory
    // under two names. Not open after an error: one that says something else than that a directory cannot be written, or that
    // of the last directory.
    void                 Ouvrir(const std::vector<std::wstring> & repertoires);
    void                 Fermer() noexcept;
    bool                 Ouvert() const { return index_.Ouvert(); }
    const std::wstring & Repertoire() const { return index_.Repertoire(); }  // of the index

    // The records whose file is there, or cannot be looked for, oldest first, and the sum of their sizes.
    const std::vector<Fiche> & Fiches() const { return fiches_; }
    std::uint64_t              Total() const;
    // Reads the index again, which another machine may have changed.
    void Relire();

    // Stores files. All records go to the disk together, then each file takes its coded name; `continuer` is asked before each
    // file but the first. `deposes` says how many were stored: less than all of them after an error and when `continuer` said no.
    // Read-only file: 75. All thousand names of the day taken in its directory: 58. Directory without a drive letter: 52. Name that
    // a record cannot hold: 64. The files stored before an error are in the bin, the others where they were, and no record of
    // theirs is left.
    void Deposer(const std::vector<Depot> & depots, std::int32_t jour,
                 const std::function<bool()> & continuer, std::size_t & deposes);
    // Destroys what the limits no longer allow, oldest first, and rewrites the index when it changed. What cannot be destroyed
    // stays in it, without an error. `continuer` is asked before each file but the first.
    void Purger(const Limites_corbeille & limites, std::int32_t jour,
                const std::function<bool()> & continuer);
    // Gives these files (indexes in Fiches) their names back; `continuer` is asked before each but the first. Those restored
    // leave the index whatever happens to a later one; the first error ends it. Former name taken: 58.
    void Restaurer(const std::vector<std::size_t> & choix, const std::function<bool()> & continuer);
    // A directory takes another name, by `renommer`: the files stored in it and below stay in the bin. Their records are on the
    // disk under the new name before it runs, and keep their places. After an error nothing has changed.
    void Suivre_repertoire(const std::wstring & ancien, const std::wstring & nouveau,
                           const std::function<void()> & renommer);
    // Every file of the index is destroyed, then the index, which is closed. A file that cannot be destroyed stays in it, and its
    // error, which names it as it was before erasure, is thrown when the others are gone. The index stays, closed, when it names
    // files of a drive that does not answer or of another removable medium, files that are not its own, or what another program
    // stored in the meantime.
    // `continuer` is asked before each file but the first; false when it ended the destruction: what is left stays, open.
    bool Detruire(const std::function<bool()> & continuer);

private:
    void Ouvrir_dans(const std::wstring & repertoire, bool premier, std::exception_ptr & erreur);
    bool Detruire_fiches(const std::function<bool()> & continuer, std::vector<Fiche> & detruites,
                         std::exception_ptr & erreur);
    void Actualiser();  // fiches_ from the lines of the index
    void Accorder();    // memory with the disk, before anything is changed
    void Ranger(std::vector<Fiche> & fiches, const std::function<bool()> & continuer, std::size_t & deposes);
    void Conclure(const std::vector<Fiche> & fiches, std::size_t deposes);
    void Placer(std::vector<Fiche> & fiches, std::size_t rang, bool & code);
    void Changer_code(std::vector<Fiche> & fiches, std::size_t rang);
    // The records of a directory's files as they are once it has another name.
    std::vector<Fiche> Fiches_suivies(const std::wstring & ancien, const std::wstring & nouveau) const;
    // With `vide_aussi` the index is removed, and closed, when it names no file any more.
    void Reecrire(const std::vector<Fiche> & parties, std::exception_ptr premiere_erreur,
                  bool vide_aussi = false);

    std::function<void()> entretemps_;
    Index_corbeille       index_;
    Codes_libres          codes_;
    std::vector<Fiche>    fiches_;
};
