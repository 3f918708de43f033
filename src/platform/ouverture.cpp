#include "platform/ouverture.h"

#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/windows.h"

std::wstring Forme_de_fichier(const std::wstring & chemin) {
    std::wstring forme = Forme_longue(chemin);
    if (forme.empty() || forme.starts_with(L"\\\\.\\"))
        throw Erreur_execution(Numero::canal_incorrect, ERROR_INVALID_NAME, chemin);
    return forme;
}

void Lever_ouverture(const std::wstring & chemin) {
    const DWORD code = GetLastError();
    const bool  obstacle =
        code == ERROR_ACCESS_DENIED || code == ERROR_FILE_EXISTS || code == ERROR_ALREADY_EXISTS;
    if (obstacle && Repertoire_existe(chemin)) throw Erreur_execution(Numero::acces_fichier, code, chemin);
    Lever_code(code, Acte::ouvrir, chemin);
}
