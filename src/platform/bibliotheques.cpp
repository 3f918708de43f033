#include "platform/bibliotheques.h"

#include "platform/erreur.h"
#include "platform/windows.h"

#include <string>

namespace {
constexpr DWORD celles_du_systeme = 0x00000800;  // LOAD_LIBRARY_SEARCH_SYSTEM32
constexpr DWORD celles_ajoutees   = 0x00000400;  // LOAD_LIBRARY_SEARCH_USER_DIRS

std::wstring Chemin_systeme(const wchar_t * nom) {
    std::wstring chemin(MAX_PATH + 1, L'\0');
    const UINT   lus = GetSystemDirectoryW(chemin.data(), MAX_PATH + 1);
    chemin.resize(lus <= MAX_PATH ? lus : 0);
    return chemin + L"\\" + nom;
}
}  // namespace

// The other ways of leaving the current directory out are inherited by the programs that this one starts.
void Restreindre_bibliotheques() {
    using Fonction        = BOOL(WINAPI *)(DWORD);
    const HMODULE noyau   = GetModuleHandleW(L"kernel32.dll");
    void * const  trouvee = reinterpret_cast<void *>(GetProcAddress(noyau, "SetDefaultDllDirectories"));
    if (trouvee != nullptr) reinterpret_cast<Fonction>(trouvee)(celles_du_systeme | celles_ajoutees);
}

void Exiger_bibliotheque(const wchar_t * nom) {
    const std::wstring chemin = Chemin_systeme(nom);
    // What it needs itself comes from its own directory too.
    if (LoadLibraryExW(chemin.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH) == nullptr)
        throw Erreur_execution(Numero::entree_sortie, GetLastError(), chemin);
}
