#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Files and directories that tests make and compare. Paths of any length. Failures throw std::runtime_error
// with the path.
namespace Pilote {

// `taille` bytes that depend on `graine` alone.
std::string Contenu(std::uint64_t taille, std::uint32_t graine);

void          Creer_fichier(const std::wstring & chemin,
                            const std::string &  contenu);  // directories on the way are made
void          Creer_fichier_graine(const std::wstring & chemin, std::uint64_t taille, std::uint32_t graine);
void          Creer_dossier(const std::wstring & chemin);  // and those on the way
std::string   Lire_fichier(const std::wstring & chemin);
std::uint64_t Taille_fichier(const std::wstring & chemin);
std::uint64_t Empreinte(const std::wstring & chemin);  // of its bytes
bool          Existe(const std::wstring & chemin);     // file or directory
std::uint32_t Attributs(const std::wstring & chemin);
void          Attributs(const std::wstring & chemin, std::uint32_t attributs);
std::uint64_t Date(const std::wstring & chemin);  // last change, FILETIME
void          Date(const std::wstring & chemin, std::uint64_t moment);
bool          Lier(const std::wstring & existant, const std::wstring & nouveau);  // hard link
// Removes a file or a whole tree, read-only or not; false when something stays. Links are removed, not
// followed.
bool Effacer(const std::wstring & chemin);

// Names in a directory, sorted without regard to case.
std::vector<std::wstring> Noms(const std::wstring & repertoire);

// What a tree holds: path below the root, beginning with "\" ("\sous\a.txt") -> content's print, size,
// attributes and date. A directory has attributes alone.
struct Fiche {
    std::uint64_t empreinte = 0;
    std::uint64_t taille    = 0;
    std::uint32_t attributs = 0;
    std::uint64_t date      = 0;

    bool operator==(const Fiche &) const = default;
};
using Arbre = std::map<std::wstring, Fiche>;
Arbre Lire_arbre(const std::wstring & racine);
// What differs, one line each; empty when the trees are equal.
std::string Differences(const Arbre & avant, const Arbre & apres);

// A directory, empty at first, removed with all that it holds: one of its own under C:\essais, or the one
// given.
class Dossier_temporaire {
public:
    Dossier_temporaire();
    explicit Dossier_temporaire(const std::wstring & chemin);
    ~Dossier_temporaire();
    Dossier_temporaire(const Dossier_temporaire &)             = delete;
    Dossier_temporaire & operator=(const Dossier_temporaire &) = delete;

    const std::wstring & Chemin() const { return chemin_; }
    std::wstring         operator/(const std::wstring & nom) const { return chemin_ + L"\\" + nom; }

private:
    std::wstring chemin_;
};

}  // namespace Pilote
