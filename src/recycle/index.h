#pragma once
#include "platform/canal.h"
#include "recycle/lignes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

// The programs that change the index take turns under this name. It tells apart neither directories nor users: a wait for a bin
// that is not ours costs a moment, no more.
inline constexpr const wchar_t * tour_de_la_corbeille = L"KORVANE.CRB";
inline constexpr unsigned        attente_du_tour      = 5000;  // milliseconds

const Page_de_codes & Page_du_systeme();

// Paths of stored files, without regard to case.
using Chemins_codes = std::unordered_set<std::wstring>;

// The index file, and its lines in memory. What is said to be written is on the disk. Errors are Erreur_execution and leave the
// file as it was.
class Index_corbeille {
public:
    // Opened or created, hidden, in that directory. What a crash left behind is mended: an unfinished rewrite, an unfinished
    // last line.
    void                 Ouvrir(const std::wstring & repertoire);
    void                 Fermer() noexcept;
    bool                 Ouvert() const { return canal_.Ouvert(); }
    const std::wstring & Repertoire() const { return repertoire_; }

    const std::vector<Ligne_index> & Lignes() const { return lignes_; }
    void                             Relire();
    void                             Constater();  // looks again for the files of the lines in memory
    // Makes sure that what is in memory is what the disk has; true when it was not. An index that was removed is made again.
    bool Synchroniser();

    // Appends records, from `premiere` on, in one write. They count as lines once they are confirmed.
    void Inscrire(const std::vector<Fiche> & fiches, std::size_t premiere);
    // Those before `fin` have their files.
    void Confirmer(const std::vector<Fiche> & fiches, std::size_t fin);
    // Takes back those that are not confirmed, from `premiere` on; false when they stay, without a file.
    bool Retirer(std::size_t premiere) noexcept;

    // The lines of an index in that directory, if there is one, become lines of this one, and it is removed.
    void Absorber(const std::wstring & repertoire);

    // Replaces the index by one without these records and those whose files are gone. A file whose directory took another name
    // keeps its former line until that name is on the disk.
    void Reecrire(const Chemins_codes & demandes);
    void Supprimer();

private:
    std::wstring  Chemin(const wchar_t * extension) const;
    Chemins_codes Avec_anciens(const Chemins_codes & partis) const;
    void          Ouvrir_canal();
    void          Recuperer_reecriture();
    void          Completer_derniere();
    void          Achever_renommages();
    void          Oter_zeros_de_fin();
    void          Remplacer(const std::string & octets);

    std::wstring               repertoire_;
    Canal_ajout                canal_;
    std::vector<Ligne_index>   lignes_;
    std::uint64_t              longueur_ = 0;  // of the lines in memory, bytes
    std::vector<std::string>   inscrites_;     // appended and not confirmed
    std::vector<std::uint64_t> debuts_;        // where each of them starts in the file
    std::size_t                premiere_ = 0;  // rank of the first of them among the files to be stored
};
