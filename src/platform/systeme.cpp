#include "platform/systeme.h"

#include "platform/windows.h"

std::wstring Repertoire_programme() {
    std::wstring chemin(MAX_PATH, L'\0');
    for (;;) {
        const DWORD lus = GetModuleFileNameW(nullptr, chemin.data(), static_cast<DWORD>(chemin.size()));
        if (lus < chemin.size()) {
            chemin.resize(lus);
            break;
        }
        chemin.resize(chemin.size() * 2);
    }
    if (chemin.starts_with(L"\\\\?\\") && chemin.size() > 5 && chemin[5] == L':') chemin.erase(0, 4);
    const std::size_t barre = chemin.rfind(L'\\');
    if (barre == std::wstring::npos) return chemin;
    chemin.resize(barre == 2 && chemin[1] == L':' ? 3 : barre);
    return chemin;
}

std::uint64_t Horloge_ms() { return GetTickCount64(); }

void Bip() { MessageBeep(MB_OK); }

Instance_unique::Instance_unique(const wchar_t * nom) {
    poignee_           = CreateMutexW(nullptr, FALSE, (std::wstring(L"Local\\") + nom).c_str());
    const DWORD erreur = GetLastError();
    // Refused access means that the name exists, held by a program with more rights.
    deja_ = poignee_ != nullptr ? erreur == ERROR_ALREADY_EXISTS : erreur == ERROR_ACCESS_DENIED;
}

Instance_unique::~Instance_unique() {
    if (poignee_ != nullptr) CloseHandle(poignee_);
}
