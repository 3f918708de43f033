#include "platform/proprietaire.h"

#include "platform/windows.h"

namespace {
template <class Fermeture> void Fermer_sans_trace(Fermeture fermer, HANDLE poignee) noexcept {
    const DWORD erreur = GetLastError();
    fermer(poignee);
    SetLastError(erreur);
}
}  // namespace

void * Regle_fichier::Invalide() { return INVALID_HANDLE_VALUE; }

void Regle_fichier::Fermer(void * poignee) noexcept { Fermer_sans_trace(CloseHandle, poignee); }

void * Regle_recherche::Invalide() { return INVALID_HANDLE_VALUE; }

void Regle_recherche::Fermer(void * poignee) noexcept { Fermer_sans_trace(FindClose, poignee); }

void Regle_objet::Fermer(void * poignee) noexcept { Fermer_sans_trace(CloseHandle, poignee); }
