#include "platform/systeme.h"

#include "platform/erreur.h"
#include "platform/textes.h"
#include "platform/windows.h"

#include <algorithm>
#include <sddl.h>
#include <shlobj.h>

namespace {
constexpr std::int64_t  jours_avant_origine = 109205;  // from 1 January 1601 to 30 December 1899
constexpr std::int64_t  unites_par_jour     = 864000000000;
constexpr std::uint64_t tranche             = 50;  // milliseconds of a wait between two looks at events

// A mutex that every user may take: with the usual rights, the first user's would shut the others out.
HANDLE Mutex_de_tous(const std::wstring & nom) {
    SECURITY_ATTRIBUTES droits{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(A;;GA;;;WD)", SDDL_REVISION_1,
                                                              &droits.lpSecurityDescriptor, nullptr))
        return nullptr;
    const HANDLE mutex = CreateMutexW(&droits, FALSE, nom.c_str());
    LocalFree(droits.lpSecurityDescriptor);
    return mutex;
}
}  // namespace

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

std::wstring Repertoire_systeme() {
    char       chemin[MAX_PATH + 1];
    const UINT lus = GetSystemDirectoryA(chemin, MAX_PATH + 1);
    return De_ansi(std::string_view(chemin, lus <= MAX_PATH ? lus : 0));
}

std::wstring Repertoire_donnees_locales() {
    wchar_t     chemin[MAX_PATH + 1];
    const DWORD lus = GetEnvironmentVariableW(L"LOCALAPPDATA", chemin, MAX_PATH + 1);
    if (lus != 0 && lus <= MAX_PATH) return {chemin, lus};
    return SUCCEEDED(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, chemin))
               ? std::wstring(chemin)
               : std::wstring();
}

std::int32_t Jour_serie() {
    SYSTEMTIME local;
    FILETIME   moment;
    GetLocalTime(&local);
    SystemTimeToFileTime(&local, &moment);
    const std::int64_t unites = std::int64_t{moment.dwHighDateTime} << 32 | moment.dwLowDateTime;
    return static_cast<std::int32_t>(unites / unites_par_jour - jours_avant_origine);
}

Exclusivite::Exclusivite(const wchar_t * nom, unsigned attente, const std::function<void()> & entretemps)
    : poignee_(Mutex_de_tous(std::wstring(L"Global\\") + nom)) {
    if (poignee_ == nullptr) return;  // without it, the others are only not waited for
    if (Attendre(attente, entretemps)) return;
    CloseHandle(poignee_);
    throw Erreur_execution(Numero::permission_refusee, ERROR_LOCK_VIOLATION, nom);
}

// A program killed while it had its turn leaves it to the next one.
bool Exclusivite::Attendre(std::uint64_t attente, const std::function<void()> & entretemps) const {
    const std::uint64_t debut = Horloge_ms();
    for (std::uint64_t ecoule = 0;; ecoule = Horloge_ms() - debut) {
        const std::uint64_t reste = attente - std::min(ecoule, attente);
        const auto          part  = static_cast<DWORD>(entretemps ? std::min(reste, tranche) : reste);
        if (WaitForSingleObject(poignee_, part) != WAIT_TIMEOUT) return true;
        if (part == reste) return false;
        entretemps();
    }
}

Exclusivite::~Exclusivite() {
    if (poignee_ == nullptr) return;
    ReleaseMutex(poignee_);
    CloseHandle(poignee_);
}
