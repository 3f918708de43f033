#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"

#include <optional>

// Whether two paths lead to one thing on the disk. Numbers alone do not settle it: one disk may show another volume
// serial under each of its drive letters, and two disks may number their files alike.

namespace {

constexpr DWORD partage_complet = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

Poignee_fichier Ouvrir(const std::wstring & chemin, DWORD acces, DWORD partage) {
    // The flag is what lets a directory be opened; files do not mind it.
    return Poignee_fichier(CreateFileW(chemin.c_str(), acces, partage, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

std::optional<BY_HANDLE_FILE_INFORMATION> Informations(const std::wstring & chemin) {
    const Poignee_fichier      fichier = Ouvrir(chemin, FILE_READ_ATTRIBUTES, partage_complet);
    BY_HANDLE_FILE_INFORMATION lues;
    if (!fichier.Valide() || !GetFileInformationByHandle(fichier.Valeur(), &lues)) return std::nullopt;
    return lues;
}

bool Memes_numeros(const BY_HANDLE_FILE_INFORMATION & a, const BY_HANDLE_FILE_INFORMATION & b) {
    return a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow &&
           a.nFileSizeHigh == b.nFileSizeHigh && a.nFileSizeLow == b.nFileSizeLow &&
           CompareFileTime(&a.ftLastWriteTime, &b.ftLastWriteTime) == 0;
}

// While one is held against deletion, opening the same thing for deletion is a sharing violation. No answer when it
// cannot be opened for deletion in the first place.
std::optional<bool> Sonder(const std::wstring & a, const std::wstring & b) {
    if (!Ouvrir(b, DELETE, partage_complet).Valide()) return std::nullopt;
    const Poignee_fichier tenu = Ouvrir(a, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    if (!tenu.Valide()) return std::nullopt;
    if (Ouvrir(b, DELETE, partage_complet).Valide()) return false;
    return GetLastError() == ERROR_SHARING_VIOLATION ? std::optional(true) : std::nullopt;
}

bool Meme_objet(const std::wstring & a, const std::wstring & b, bool repertoires) {
    const auto de_a = Informations(a);
    const auto de_b = Informations(b);
    if (!de_a || !de_b || !Memes_numeros(*de_a, *de_b)) return false;
    const auto du_genre = [&](DWORD attributs) {
        return ((attributs & FILE_ATTRIBUTE_DIRECTORY) != 0) == repertoires;
    };
    if (!du_genre(de_a->dwFileAttributes) || !du_genre(de_b->dwFileAttributes)) return false;
    if (de_a->dwVolumeSerialNumber == de_b->dwVolumeSerialNumber && de_a->dwVolumeSerialNumber != 0)
        return true;
    // Undecided, everything being equal: the same, since the mistake then costs a refusal and not a file.
    return Sonder(a, b).value_or(true);
}

bool Meme(const std::wstring & a, const std::wstring & b, bool repertoires) {
    try {
        return Meme_objet(Forme_longue(a), Forme_longue(b), repertoires);
    } catch (const Erreur_execution &) {
        return false;
    }
}

}  // namespace

bool Meme_fichier(const std::wstring & a, const std::wstring & b) { return Meme(a, b, false); }

bool Meme_repertoire(const std::wstring & a, const std::wstring & b) { return Meme(a, b, true); }
