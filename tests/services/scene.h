#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

class Magasin;

// Files, some of them in the recycle bin, on which something is done that may be cut; then what a new start makes of them is
// compared with what they were. The system is used directly.
class Scene {
public:
    enum class Sort {
        garder,     // at its place, or listed in the bin and given back whole
        perissable  // destroyed on purpose by what is done: gone, or like the others
    };
    struct Fichier {
        std::wstring  nom;  // below the root, "un\RAPPORT.DOC"
        std::string   octets;
        std::uint64_t date      = 0;
        std::uint32_t attributs = 0;  // before erasure
        std::wstring  code;           // its name in the bin at the beginning, empty when it is at its place
        std::wstring  autre;          // where it may be taken, below the root
        Sort          sort = Sort::garder;
    };

    explicit Scene(std::wstring racine) : racine_(std::move(racine)) {}

    Fichier & Poser(const std::wstring & nom, std::size_t taille, std::uint32_t attributs = 0x20);
    // In the bin, erased on `jour`, with its line in the index.
    Fichier & Ranger(const std::wstring & nom, std::size_t taille, std::int32_t jour,
                     std::uint32_t attributs = 0x20);
    // A line of the index as it is. `etrangere`: no record, which nothing may take away.
    void Ligne(const std::string & ligne, bool etrangere);
    // The directories where the store looks for its index; the last one is where it is.
    void Index_dans(const std::vector<std::wstring> & repertoires) { places_ = repertoires; }
    void Index_est(const std::wstring & nom, const std::string & lignes) { autres_index_[nom] = lignes; }
    void Sans_index() { avec_index_ = false; }

    const std::wstring &         Racine() const { return racine_; }
    const std::vector<Fichier> & Fichiers() const { return fichiers_; }
    std::string                  Lignes() const;

    // Makes all of it on the disk, in place of whatever is there.
    void Installer() const;
    // Starts anew on what is there and says what is wrong; empty when nothing is lost. Everything in the bin is given back.
    std::vector<std::string> Redemarrer() const;

private:
    std::wstring             Chemin(const std::wstring & nom) const { return racine_ + L"\\" + nom; }
    std::string              Fiche_de(const Fichier & fichier) const;
    void                     Installer_fichier(const Fichier & fichier) const;
    void                     Installer_index() const;
    std::vector<std::string> Comparer(const Magasin & magasin, const std::wstring & index) const;

    static std::wstring  Place_de(const Fichier & fichier);
    static std::uint32_t Attributs_de(const Fichier & fichier);

    std::wstring                        racine_;
    std::vector<std::wstring>           places_     = {L"index"};
    bool                                avec_index_ = true;
    std::map<std::wstring, std::string> autres_index_;
    std::vector<Fichier>                fichiers_;
    std::vector<std::string>            lignes_;
    std::vector<std::string>            etrangeres_;
};
