#include "platform/fichiers.h"

#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/parcours.h"
#include "platform/poignee.h"

namespace {

// What may be set; the others describe how the file is stored.
constexpr DWORD attributs_reglables =
    FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
    FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_OFFLINE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::uint64_t En_64(DWORD haut, DWORD bas) { return std::uint64_t{haut} << 32 | bas; }

DWORD Attributs_ou_absent(const std::wstring & chemin) {
    if (chemin.empty() ||
        chemin.find_first_of(L"?*", chemin.starts_with(L"\\\\?\\") ? 4 : 0) != std::wstring::npos)
        return INVALID_FILE_ATTRIBUTES;
    try {
        return GetFileAttributesW(Forme_longue(chemin).c_str());
    } catch (const Erreur_execution &) {
        return INVALID_FILE_ATTRIBUTES;
    }
}

Entree_repertoire Entree(const WIN32_FIND_DATAW & trouve) {
    return {std::wstring(trouve.cFileName), En_64(trouve.nFileSizeHigh, trouve.nFileSizeLow),
            En_64(trouve.ftLastWriteTime.dwHighDateTime, trouve.ftLastWriteTime.dwLowDateTime),
            trouve.dwFileAttributes};
}

}  // namespace

Contenu_repertoire Lire_repertoire(const std::wstring & repertoire) {
    Contenu_repertoire contenu;
    Enumerer(repertoire, [&](const Entree_vue & vue) {
        (vue.repertoire ? contenu.repertoires : contenu.fichiers)
            .push_back({std::wstring(vue.nom), vue.taille, vue.moment, vue.attributs});
        return true;
    });
    return contenu;
}

std::vector<Entree_repertoire> Lister(const std::wstring & repertoire, bool repertoires) {
    Contenu_repertoire contenu = Lire_repertoire(repertoire);
    return std::move(repertoires ? contenu.repertoires : contenu.fichiers);
}

bool Fichier_existe(const std::wstring & chemin) {
    const DWORD attributs = Attributs_ou_absent(chemin);
    return attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Repertoire_existe(const std::wstring & chemin) {
    const DWORD attributs = Attributs_ou_absent(chemin);
    return attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::uint64_t Longueur_fichier(const std::wstring & chemin) {
    // Through a handle: of a link the attributes give the link's own length.
    const Poignee_fichier fichier(CreateFileW(Forme_longue(chemin).c_str(), FILE_READ_ATTRIBUTES,
                                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                              OPEN_EXISTING, 0, nullptr));
    if (!fichier.Valide()) {
        const DWORD code = GetLastError();
        if (Repertoire_existe(chemin)) throw Erreur_execution(Numero::acces_fichier, code, chemin);
        Lever_code(code, Acte::ouvrir, chemin);
    }
    LARGE_INTEGER taille;
    if (!GetFileSizeEx(fichier.Valeur(), &taille)) Lever_derniere_erreur(Acte::lire, chemin);
    return static_cast<std::uint64_t>(taille.QuadPart);
}

Entree_repertoire Lire_entree(const std::wstring & chemin) {
    // "<", ">" and the quote are wildcards as well, to the file system itself.
    if (chemin.empty() ||
        chemin.find_first_of(L"?*<>\"", chemin.starts_with(L"\\\\?\\") ? 4 : 0) != std::wstring::npos)
        Lever_code(ERROR_INVALID_NAME, Acte::ouvrir, chemin);
    const std::wstring forme = Forme_longue(Sans_barre_finale(chemin));
    // No directory lists a root.
    if (forme.back() == L'\\') return {{}, 0, 0, Lire_attributs(forme)};
    WIN32_FIND_DATAW        trouve;
    const Poignee_recherche recherche(
        FindFirstFileExW(forme.c_str(), FindExInfoBasic, &trouve, FindExSearchNameMatch, nullptr, 0));
    if (!recherche.Valide()) Lever_derniere_erreur(Acte::ouvrir, chemin);
    return Entree(trouve);
}

Entree_repertoire Lire_etat(const std::wstring & chemin) {
    WIN32_FILE_ATTRIBUTE_DATA lu;
    if (!GetFileAttributesExW(Forme_longue(chemin).c_str(), GetFileExInfoStandard, &lu))
        Lever_derniere_erreur(Acte::ouvrir, chemin);
    return {{},
            En_64(lu.nFileSizeHigh, lu.nFileSizeLow),
            En_64(lu.ftLastWriteTime.dwHighDateTime, lu.ftLastWriteTime.dwLowDateTime),
            lu.dwFileAttributes};
}

std::uint32_t Lire_attributs(const std::wstring & chemin) {
    const DWORD attributs = GetFileAttributesW(Forme_longue(chemin).c_str());
    if (attributs == INVALID_FILE_ATTRIBUTES) Lever_derniere_erreur(Acte::ouvrir, chemin);
    return attributs;
}

void Ecrire_attributs(const std::wstring & chemin, std::uint32_t attributs) {
    const std::wstring forme  = Forme_longue(chemin);
    const DWORD        voulus = attributs & attributs_reglables;
    const DWORD        autres = voulus & ~DWORD{FILE_ATTRIBUTE_READONLY};
    // Some file systems keep the other attributes beside the file and change them only while it can be written.
    const bool deux_temps = autres != voulus;
    if (!SetFileAttributesW(forme.c_str(), autres != 0 ? autres : FILE_ATTRIBUTE_NORMAL) ||
        (deux_temps && !SetFileAttributesW(forme.c_str(), voulus)))
        Lever_derniere_erreur(Acte::ecrire, chemin);
}
