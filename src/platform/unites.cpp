#include "platform/unites.h"

#include "platform/textes.h"
#include "platform/windows.h"

#include <algorithm>

namespace {

std::wstring Etiquette(const std::wstring & racine) {
    wchar_t nom[MAX_PATH + 1] = L"";
    if (!GetVolumeInformationW(racine.c_str(), nom, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0))
        return {};
    return nom;
}

// The network provider's library is only loaded where a network drive exists: it would slow every start down.
std::wstring Partage(wchar_t lettre) {
    using Connexion        = DWORD(WINAPI *)(const wchar_t *, wchar_t *, DWORD *);
    static const auto lire = []() -> Connexion {
        const HMODULE mpr = LoadLibraryExW(L"mpr.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (mpr == nullptr) return nullptr;
        return reinterpret_cast<Connexion>(
            reinterpret_cast<void *>(GetProcAddress(mpr, "WNetGetConnectionW")));
    }();
    if (lire == nullptr) return {};
    const wchar_t unite[] = {lettre, L':', L'\0'};
    std::wstring  nom(MAX_PATH, L'\0');
    DWORD         taille = MAX_PATH;
    DWORD         retour = lire(unite, nom.data(), &taille);
    if (retour == ERROR_MORE_DATA) {
        nom.resize(taille);
        retour = lire(unite, nom.data(), &taille);
    }
    // A connection that is remembered but not open at the moment still has its name.
    if (retour != NO_ERROR && retour != ERROR_CONNECTION_UNAVAIL) return {};
    nom.resize(std::min(nom.find(L'\0'), nom.size()));
    return nom;
}

Unite Decrire(wchar_t lettre) {
    const std::wstring debut  = {lettre, L':'};
    const std::wstring racine = debut + L"\\";
    switch (GetDriveTypeW(racine.c_str())) {
    case DRIVE_FIXED:
    case DRIVE_RAMDISK: {
        const std::wstring nom = Etiquette(racine);
        return {lettre, Genre_unite::fixe, nom.empty() ? debut : debut + L" [" + nom + L"]"};
    }
    case DRIVE_REMOTE: {
        const std::wstring nom = Partage(lettre);
        return {lettre, Genre_unite::reseau, nom.empty() ? debut : debut + L" " + nom};
    }
    default:
        // Not looked at: a drive without medium would keep the user waiting.
        return {lettre, Genre_unite::amovible, debut};
    }
}

}  // namespace

std::vector<Unite> Unites_presentes() {
    std::vector<Unite> unites;
    const DWORD        presentes = GetLogicalDrives();
    for (unsigned rang = 0; rang < 26; ++rang)
        if ((presentes >> rang & 1) != 0) unites.push_back(Decrire(static_cast<wchar_t>(L'a' + rang)));
    return unites;
}

std::uint64_t Octets_libres(const std::wstring & racine) {
    DWORD secteurs = 0;
    DWORD octets   = 0;
    DWORD libres   = 0;
    DWORD total    = 0;
    if (!GetDiskFreeSpaceA(En_ansi(racine).c_str(), &secteurs, &octets, &libres, &total)) return 0;
    return std::uint64_t{libres} * secteurs * octets;
}

bool Support_amovible(const std::wstring & racine) {
    const UINT genre = GetDriveTypeW(racine.c_str());
    return genre == DRIVE_REMOVABLE || genre == DRIVE_CDROM;
}
