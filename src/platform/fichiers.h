#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// File-system services. Paths may be longer than 260 characters and hold any name: the long-path prefix is added here where
// a path needs it. No service interprets "?" or "*" in a path. Failures throw Erreur_execution and leave things as they were.

namespace Attribut {
inline constexpr std::uint32_t lecture    = 0x01;
inline constexpr std::uint32_t cache      = 0x02;
inline constexpr std::uint32_t systeme    = 0x04;
inline constexpr std::uint32_t repertoire = 0x10;
inline constexpr std::uint32_t modifie    = 0x20;
inline constexpr std::uint32_t lien       = 0x400;  // reparse point: tree walks do not go into it
}  // namespace Attribut

struct Entree_repertoire {
    std::wstring  nom;            // as spelled on disk
    std::uint64_t taille    = 0;  // bytes
    std::uint64_t moment    = 0;  // last change, FILETIME
    std::uint32_t attributs = 0;
};

struct Contenu_repertoire {
    std::vector<Entree_repertoire> repertoires;
    std::vector<Entree_repertoire> fichiers;
};

// What one directory holds, "." and ".." left out, in the order of the system, by one enumeration of the disk.
// Errors 76 (no such directory), 70 (cannot be read), 71, 68.
Contenu_repertoire Lire_repertoire(const std::wstring & repertoire);
// The same for directories alone or files alone.
std::vector<Entree_repertoire> Lister(const std::wstring & repertoire, bool repertoires);

std::wstring Forme_longue(const std::wstring & chemin);  // with "\\?\" where the path needs it
std::wstring Chemin_complet(
    const std::wstring & chemin);  // absolute; relative to the current directory, or to its drive's for "d:"
std::wstring Nom_sur_disque(
    const std::wstring & repertoire);  // existing directory's path as spelled on disk, drive in capitals
bool          Fichier_existe(const std::wstring & chemin);  // a file, not a directory
bool          Repertoire_existe(const std::wstring & chemin);
std::uint64_t Longueur_fichier(const std::wstring & chemin);
// One file or directory as its directory lists it, the name as spelled on disk (empty for a root). Errors 53, 76, 68, 71; 64
// for a name that the system would take for a pattern.
Entree_repertoire Lire_entree(const std::wstring & chemin);
// The same by the path alone, without its name: the length is that of this moment, also while a program writes it.
Entree_repertoire Lire_etat(const std::wstring & chemin);
std::uint32_t     Lire_attributs(const std::wstring & chemin);
void Ecrire_attributs(const std::wstring & chemin, std::uint32_t attributs);  // exactly these; 0 means normal

// True when both paths name one file on the disk: other spelling, short name, substituted drive, hard link.
// False when either cannot be opened.
bool Meme_fichier(const std::wstring & a, const std::wstring & b);
// The same for directories.
bool Meme_repertoire(const std::wstring & a, const std::wstring & b);

// Deletes one file and makes sure that it is gone. Read-only: error 75. Error 70 when the medium is write-protected.
void Supprimer_fichier(const std::wstring & chemin);
// Renames within one drive; the target must not exist (58). Changing only the case of a name works. Another drive: 74.
void Renommer_fichier(const std::wstring & source, const std::wstring & cible);
// Renames onto an existing file, which is replaced in one atomic, durable step, read-only or not.
void Remplacer_fichier(const std::wstring & source, const std::wstring & cible);

void         Creer_repertoire(const std::wstring & chemin);    // 75 when it exists
void         Retirer_repertoire(const std::wstring & chemin);  // 75 when not empty or current
std::wstring Repertoire_courant();
// Makes a directory (and its drive) current. A path longer than the system allows for it is left alone.
void Changer_repertoire(const std::wstring & chemin);
