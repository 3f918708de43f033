#include "platform/unites.h"

#include "platform/poignee.h"
#include "platform/textes.h"
#include "platform/windows.h"

#include <winioctl.h>

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

// The letter stands for a directory, which may be anywhere, or for nothing that the system knows.
bool Lettre_substituee(const std::wstring & unite) {
    wchar_t cible[MAX_PATH + 1];
    return QueryDosDeviceW(unite.c_str(), cible, MAX_PATH + 1) == 0 ||
           std::wstring_view(cible).starts_with(L"\\??\\");
}

// A disk in a box of its own is a fixed one to the system. One that does not know the question is no such disk.
bool Debranchable(const std::wstring & unite) {
    const Poignee_fichier volume(CreateFileW((L"\\\\.\\" + unite).c_str(), 0,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                             nullptr));
    STORAGE_HOTPLUG_INFO  lu{};
    DWORD                 recus = 0;
    if (!volume.Valide()) return true;
    if (DeviceIoControl(volume.Valeur(), IOCTL_STORAGE_GET_HOTPLUG_INFO, nullptr, 0, &lu, sizeof lu, &recus,
                        nullptr))
        return lu.MediaRemovable || lu.MediaHotplug || lu.DeviceHotplug;
    const DWORD code = GetLastError();
    return code != ERROR_INVALID_FUNCTION && code != ERROR_NOT_SUPPORTED;
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

bool Support_fixe(const std::wstring & racine) {
    const std::wstring unite = racine.substr(0, 2);
    return GetDriveTypeW(racine.c_str()) == DRIVE_FIXED && !Lettre_substituee(unite) && !Debranchable(unite);
}
