#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"

namespace {

constexpr int   essais_de_remplacement = 5;
constexpr DWORD attente_entre_essais   = 20;  // milliseconds

bool Present(const std::wstring & forme) {
    return GetFileAttributesW(forme.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// A medium that refuses writing may answer a deletion with success.
void Verifier_disparition(const std::wstring & forme, const std::wstring & chemin) {
    if (Present(forme)) throw Erreur_execution(Numero::permission_refusee, ERROR_WRITE_PROTECT, chemin);
}

bool Egaux_a_la_casse_pres(const std::wstring & a, const std::wstring & b) {
    return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()),
                                TRUE) == CSTR_EQUAL;
}

bool Porte_le_nom(const std::wstring & forme) {
    WIN32_FIND_DATAW        trouve;
    const Poignee_recherche recherche(
        FindFirstFileExW(forme.c_str(), FindExInfoBasic, &trouve, FindExSearchNameMatch, nullptr, 0));
    return recherche.Valide() && forme.substr(forme.find_last_of(L"\\/") + 1) == trouve.cFileName;
}

std::wstring Nom_intermediaire(const std::wstring & forme) {
    const std::wstring debut = forme.substr(0, forme.find_last_of(L"\\/") + 1) + L"~krv";
    for (unsigned rang = GetCurrentProcessId() & 0xFFFF;; ++rang) {
        std::wstring nom = debut + std::to_wstring(rang) + L".tmp";
        if (!Present(nom)) return nom;
    }
}

// One step where the system takes another case as a change; some file systems see nothing to do, and the file then
// goes through a name of its own.
void Changer_casse(const std::wstring & source, const std::wstring & cible, const std::wstring & chemin) {
    if (MoveFileExW(source.c_str(), cible.c_str(), 0)) {
        if (Porte_le_nom(cible)) return;
    } else if (GetLastError() != ERROR_ALREADY_EXISTS && GetLastError() != ERROR_FILE_EXISTS) {
        Lever_derniere_erreur(Acte::renommer, chemin);
    }
    const std::wstring intermediaire = Nom_intermediaire(cible);
    if (!MoveFileExW(source.c_str(), intermediaire.c_str(), 0)) Lever_derniere_erreur(Acte::renommer, chemin);
    if (MoveFileExW(intermediaire.c_str(), cible.c_str(), 0)) return;
    const DWORD code = GetLastError();
    MoveFileExW(intermediaire.c_str(), source.c_str(), 0);
    Lever_code(code, Acte::renommer, chemin);
}

// Another program reading the old file makes the replacement fail for a moment.
DWORD Remplacer_avec_patience(const std::wstring & source, const std::wstring & cible) {
    for (int essai = 1;; ++essai) {
        if (MoveFileExW(source.c_str(), cible.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return ERROR_SUCCESS;
        const DWORD code     = GetLastError();
        const bool  passager = code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION;
        if (!passager || essai == essais_de_remplacement) return code;
        Sleep(attente_entre_essais);
    }
}

// The new name is on the disk once the file has been flushed under it. Read-only, it cannot be opened for that.
void Fixer_nom(const std::wstring & forme) {
    const Poignee_fichier fichier(CreateFileW(forme.c_str(), GENERIC_WRITE,
                                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                              OPEN_EXISTING, 0, nullptr));
    if (fichier.Valide()) FlushFileBuffers(fichier.Valeur());
}

}  // namespace

void Supprimer_fichier(const std::wstring & chemin) {
    const std::wstring forme     = Forme_longue(chemin);
    const DWORD        attributs = GetFileAttributesW(forme.c_str());
    if (attributs == INVALID_FILE_ATTRIBUTES) Lever_derniere_erreur(Acte::supprimer, chemin);
    if ((attributs & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        throw Erreur_execution(Numero::acces_fichier, ERROR_ACCESS_DENIED, chemin);
    if (!DeleteFileW(forme.c_str())) Lever_derniere_erreur(Acte::supprimer, chemin);
    Verifier_disparition(forme, chemin);
}

void Renommer_fichier(const std::wstring & source, const std::wstring & cible) {
    const std::wstring de = Forme_longue(source);
    const std::wstring a  = Forme_longue(cible);
    if (!Present(de)) Lever_derniere_erreur(Acte::renommer, source);
    if (de == a) return;
    if (Egaux_a_la_casse_pres(de, a)) return Changer_casse(de, a, source);
    if (!MoveFileExW(de.c_str(), a.c_str(), 0)) {
        const DWORD code = GetLastError();
        Lever_code(code, Acte::renommer, code == ERROR_ALREADY_EXISTS ? cible : source);
    }
}

void Remplacer_fichier(const std::wstring & source, const std::wstring & cible) {
    const std::wstring de        = Forme_longue(source);
    const std::wstring a         = Forme_longue(cible);
    const DWORD        attributs = GetFileAttributesW(a.c_str());
    const bool protege = attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_READONLY) != 0;
    if (protege && !SetFileAttributesW(a.c_str(), attributs & ~DWORD{FILE_ATTRIBUTE_READONLY}))
        Lever_derniere_erreur(Acte::ecrire, cible);
    const DWORD code = Remplacer_avec_patience(de, a);
    if (code != ERROR_SUCCESS) {
        if (protege) SetFileAttributesW(a.c_str(), attributs);
        Lever_code(code, Acte::renommer, Present(de) ? cible : source);
    }
    Fixer_nom(a);
}

void Creer_repertoire(const std::wstring & chemin) {
    // Made complete first, a typed name loses the final points and blanks that other programs could not reach.
    if (!CreateDirectoryW(Forme_longue(Chemin_complet(chemin)).c_str(), nullptr))
        Lever_derniere_erreur(Acte::creer_repertoire, chemin);
}

void Retirer_repertoire(const std::wstring & chemin) {
    const std::wstring forme = Forme_longue(chemin);
    if (!Present(forme)) {
        const DWORD code = GetLastError();
        Lever_code(code == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : code, Acte::retirer_repertoire,
                   chemin);
    }
    if (Meme_repertoire(chemin, Repertoire_courant()))
        throw Erreur_execution(Numero::acces_fichier, ERROR_CURRENT_DIRECTORY, chemin);
    if (!RemoveDirectoryW(forme.c_str())) Lever_derniere_erreur(Acte::retirer_repertoire, chemin);
    Verifier_disparition(forme, chemin);
}
