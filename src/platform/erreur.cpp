#include "platform/erreur.h"

#include "platform/windows.h"

namespace {

// A refusal of the service itself carries no code; the system's own words for the nearest code serve as well.
DWORD Code_proche(int numero) {
    switch (numero) {
    case Numero::appel_incorrect: return ERROR_BAD_FORMAT;
    case Numero::depassement: return ERROR_ARITHMETIC_OVERFLOW;
    case Numero::memoire: return ERROR_NOT_ENOUGH_MEMORY;
    case Numero::canal_incorrect: return ERROR_INVALID_HANDLE;
    case Numero::fichier_introuvable: return ERROR_FILE_NOT_FOUND;
    case Numero::fichier_existe: return ERROR_FILE_EXISTS;
    case Numero::disque_plein: return ERROR_DISK_FULL;
    case Numero::fin_depassee: return ERROR_HANDLE_EOF;
    case Numero::nom_incorrect: return ERROR_INVALID_NAME;
    case Numero::trop_de_fichiers: return ERROR_TOO_MANY_OPEN_FILES;
    case Numero::unite_absente: return ERROR_INVALID_DRIVE;
    case Numero::permission_refusee:
    case Numero::acces_fichier: return ERROR_ACCESS_DENIED;
    case Numero::disque_non_pret: return ERROR_NOT_READY;
    case Numero::autre_disque: return ERROR_NOT_SAME_DEVICE;
    case Numero::chemin_introuvable: return ERROR_PATH_NOT_FOUND;
    case Numero::valeur_incorrecte: return ERROR_INVALID_PARAMETER;
    default: return ERROR_GEN_FAILURE;
    }
}

bool Lettre_unite(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }

// "c:\" of a path that starts with a drive, with or without the long-path prefix; empty for others.
std::wstring Racine(const std::wstring & chemin) {
    const std::size_t debut = chemin.starts_with(L"\\\\?\\") ? 4 : 0;
    if (chemin.size() < debut + 2 || chemin[debut + 1] != L':' || !Lettre_unite(chemin[debut])) return {};
    return {chemin[debut], L':', L'\\'};
}

bool Unite_listee(wchar_t lettre) { return (GetLogicalDrives() >> ((lettre | 0x20) - L'a') & 1) != 0; }

bool Volume_protege(const std::wstring & racine) {
    if (GetDriveTypeW(racine.c_str()) == DRIVE_CDROM) return true;
    DWORD drapeaux = 0;
    return GetVolumeInformationW(racine.c_str(), nullptr, 0, nullptr, nullptr, &drapeaux, nullptr, 0) &&
           (drapeaux & FILE_READ_ONLY_VOLUME) != 0;
}

// A name longer than a file system holds is reported as missing by some systems.
bool Nom_trop_long(const std::wstring & chemin) {
    std::size_t debut = 0;
    for (std::size_t i = 0; i <= chemin.size(); ++i) {
        if (i < chemin.size() && chemin[i] != L'\\' && chemin[i] != L'/') continue;
        if (i - debut > 255) return true;
        debut = i + 1;
    }
    return false;
}

// "Not found" is also what a drive without medium and an absent drive answer, and "access denied" what a volume
// mounted read-only answers: the code that says it is found by looking at the root.
DWORD Preciser(DWORD code, Acte acte, const std::wstring & chemin) {
    const std::wstring racine = Racine(chemin);
    if (racine.empty()) return code;
    if (code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND || code == ERROR_INVALID_DRIVE) {
        if (!Unite_listee(racine[0])) return ERROR_INVALID_DRIVE;
        if (GetFileAttributesW(racine.c_str()) == INVALID_FILE_ATTRIBUTES &&
            GetLastError() != ERROR_ACCESS_DENIED)
            return ERROR_NOT_READY;
        if (Nom_trop_long(chemin)) return ERROR_FILENAME_EXCED_RANGE;
    }
    const bool lecture = acte == Acte::lire || acte == Acte::lister || acte == Acte::ouvrir;
    if (code == ERROR_ACCESS_DENIED && !lecture && Volume_protege(racine)) return ERROR_WRITE_PROTECT;
    return code;
}

}  // namespace

std::wstring Erreur_execution::Texte() const {
    const DWORD code     = code_systeme != 0 ? code_systeme : Code_proche(numero);
    wchar_t *   alloue   = nullptr;
    const DWORD longueur = FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                                              FORMAT_MESSAGE_IGNORE_INSERTS,
                                          nullptr, code, 0, reinterpret_cast<wchar_t *>(&alloue), 0, nullptr);
    if (longueur == 0) return L"Erreur système " + std::to_wstring(code);
    std::wstring texte(alloue, longueur);
    LocalFree(alloue);
    while (!texte.empty() && (texte.back() == L'\r' || texte.back() == L'\n' || texte.back() == L' '))
        texte.pop_back();
    return texte;
}

void Lever_derniere_erreur(Acte acte, const std::wstring & chemin) {
    const DWORD code = GetLastError();
    Lever_code(code, acte, chemin);
}

void Lever_code(std::uint32_t code, Acte acte, const std::wstring & chemin) {
    const DWORD precis = code != 0 ? Preciser(code, acte, chemin) : ERROR_GEN_FAILURE;
    throw Erreur_execution(Numero_erreur(precis, acte), precis, chemin);
}

bool Tenter(const std::function<void()> & corps) {
    try {
        corps();
        return true;
    } catch (const std::exception &) {
        return false;
    }
}
