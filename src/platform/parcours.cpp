#include "platform/parcours.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"

namespace {

std::uint64_t En_64(DWORD haut, DWORD bas) { return std::uint64_t{haut} << 32 | bas; }

bool Point_ou_deux(const wchar_t * nom) {
    return nom[0] == L'.' && (nom[1] == L'\0' || (nom[1] == L'.' && nom[2] == L'\0'));
}

std::wstring Filtre_de_tout(const std::wstring & repertoire) {
    // The names of the path are names: a wildcard among them would list something else.
    if (repertoire.empty() ||
        repertoire.find_first_of(L"?*", repertoire.starts_with(L"\\\\?\\") ? 4 : 0) != std::wstring::npos)
        Lever_code(ERROR_PATH_NOT_FOUND, Acte::lister, repertoire);
    std::wstring filtre = Forme_longue(repertoire);
    if (filtre.back() != L'\\' && filtre.back() != L'/') filtre += L'\\';
    return filtre += L'*';
}

// An empty root has no entry at all, not even ".", and answers "file not found" as a missing directory may.
bool Vide(DWORD code, const std::wstring & repertoire) {
    return (code == ERROR_FILE_NOT_FOUND || code == ERROR_NO_MORE_FILES) && Repertoire_existe(repertoire);
}

// Other reparse points are ordinary directories kept in an unusual way (a cloud's, a deduplicated disk's). A system
// that names no kind has links alone.
bool Est_lien(const WIN32_FIND_DATAW & trouve) {
    constexpr DWORD autre_nom = 0x20000000;
    if ((trouve.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
    return trouve.dwReserved0 == 0 || (trouve.dwReserved0 & autre_nom) != 0;
}

Entree_vue Decrire(const WIN32_FIND_DATAW & trouve) {
    Entree_vue entree;
    entree.nom        = trouve.cFileName;
    entree.taille     = En_64(trouve.nFileSizeHigh, trouve.nFileSizeLow);
    entree.moment     = En_64(trouve.ftLastWriteTime.dwHighDateTime, trouve.ftLastWriteTime.dwLowDateTime);
    entree.attributs  = trouve.dwFileAttributes;
    entree.repertoire = (trouve.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    entree.lien       = Est_lien(trouve);
    return entree;
}

}  // namespace

bool Enumerer(const std::wstring & repertoire, const std::function<bool(const Entree_vue &)> & visite) {
    const std::wstring      filtre = Filtre_de_tout(repertoire);
    WIN32_FIND_DATAW        trouve;
    const Poignee_recherche recherche(FindFirstFileExW(
        filtre.c_str(), FindExInfoBasic, &trouve, FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (!recherche.Valide()) {
        const DWORD code = GetLastError();
        if (Vide(code, repertoire)) return true;
        Lever_code(Fichier_existe(repertoire) ? ERROR_DIRECTORY : code, Acte::lister, repertoire);
    }
    do {
        const Entree_vue entree = Decrire(trouve);
        if (entree.repertoire && Point_ou_deux(trouve.cFileName)) continue;
        if (!visite(entree)) return false;
    } while (FindNextFileW(recherche.Valeur(), &trouve));
    if (GetLastError() != ERROR_NO_MORE_FILES) Lever_derniere_erreur(Acte::lister, repertoire);
    return true;
}

std::wstring Identite_support(const std::wstring & unite) {
    const std::wstring racine            = unite.substr(0, 2) + L"\\";
    wchar_t            nom[MAX_PATH + 1] = L"";
    DWORD              numero            = 0;
    if (!GetVolumeInformationW(racine.c_str(), nom, MAX_PATH + 1, &numero, nullptr, nullptr, nullptr, 0))
        return {};
    return std::to_wstring(numero) + L" " + nom;
}
