#include "toolkit/presse_papiers.h"

#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/fenetre.h"

#include <cstring>

namespace {
HGLOBAL Memoire_de(const std::wstring & texte) {
    const SIZE_T  octets  = (texte.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memoire = GlobalAlloc(GMEM_MOVEABLE, octets);
    if (memoire == nullptr) return nullptr;
    if (void * adresse = GlobalLock(memoire)) {
        std::memcpy(adresse, texte.c_str(), octets);
        GlobalUnlock(memoire);
        return memoire;
    }
    GlobalFree(memoire);
    return nullptr;
}

// Another program holds the clipboard for a moment only, as a rule.
bool Prendre(HWND proprietaire) {
    for (int essai = 0; essai < 10; ++essai) {
        if (OpenClipboard(proprietaire) != FALSE) return true;
        Sleep(10);
    }
    return false;
}
}  // namespace

bool Copier_au_presse_papiers(const std::wstring & texte) {
    const HGLOBAL memoire = Memoire_de(texte);
    if (memoire == nullptr) return false;
    const Fenetre * devant = Application::Devant();
    if (!Prendre(devant == nullptr ? nullptr : devant->Poignee())) {
        GlobalFree(memoire);
        return false;
    }
    EmptyClipboard();
    const bool mis = SetClipboardData(CF_UNICODETEXT, memoire) != nullptr;
    if (!mis) GlobalFree(memoire);
    CloseClipboard();
    return mis;
}
