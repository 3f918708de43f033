#include "platform/lecture_partagee.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/poignee.h"

Lecture_partagee::Lecture_partagee(const std::wstring & chemin)
    : chemin_(chemin), fichier_(CreateFileW(Forme_longue(chemin).c_str(), GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    if (!fichier_.Valide()) {
        const DWORD code = GetLastError();
        // Opening a directory is an access that is refused.
        if (Repertoire_existe(chemin)) throw Erreur_execution(Numero::acces_fichier, 0, chemin);
        Lever_code(code, Acte::ouvrir, chemin);
    }
    // Reading a console, a port or a pipe would wait for what may never come.
    if (GetFileType(fichier_.Valeur()) != FILE_TYPE_DISK)
        throw Erreur_execution(Numero::canal_incorrect, 0, chemin);
}

std::uint64_t Lecture_partagee::Longueur() const {
    LARGE_INTEGER longueur;
    if (!GetFileSizeEx(fichier_.Valeur(), &longueur)) Lever_derniere_erreur(Acte::lire, chemin_);
    return static_cast<std::uint64_t>(longueur.QuadPart);
}

std::size_t Lecture_partagee::Lire(std::uint64_t position, char * tampon, std::size_t longueur) const {
    std::size_t lus = 0;
    while (lus < longueur) {
        OVERLAPPED          place{};
        const std::uint64_t ou = position + lus;
        place.Offset           = static_cast<DWORD>(ou);
        place.OffsetHigh       = static_cast<DWORD>(ou >> 32);
        DWORD obtenus          = 0;
        if (!ReadFile(fichier_.Valeur(), tampon + lus, static_cast<DWORD>(longueur - lus), &obtenus,
                      &place)) {
            if (GetLastError() == ERROR_HANDLE_EOF) break;
            Lever_derniere_erreur(Acte::lire, chemin_);
        }
        if (obtenus == 0) break;
        lus += obtenus;
    }
    return lus;
}
