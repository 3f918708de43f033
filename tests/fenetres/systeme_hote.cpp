#include "fenetres/systeme_hote.h"

#include "pilote/attente.h"
#include "pilote/fichiers.h"
#include "platform/windows.h"

#include <stdexcept>

namespace {

// "C:\users\x" as the host spells it.
std::string Chemin_hote(const std::wstring & chemin) {
    using Conversion    = char *(CDECL *)(const wchar_t *);
    const HMODULE noyau = GetModuleHandleW(L"kernel32.dll");
    const auto    lire  = reinterpret_cast<Conversion>(
        reinterpret_cast<void *>(GetProcAddress(noyau, "wine_get_unix_file_name")));
    if (!lire) throw std::runtime_error("aucun système hôte");
    char * nom = lire(chemin.c_str());
    if (!nom) throw std::runtime_error("aucun nom sur l'hôte pour " + Pilote::Utf8(chemin));
    std::string resultat = nom;
    HeapFree(GetProcessHeap(), 0, nom);
    return resultat;
}

}  // namespace

// A host's program started from here cannot be waited for: it tells its end by a file.
bool Sur_hote(const std::wstring & repertoire, const std::wstring & commande) {
    const Pilote::Dossier_temporaire echange;
    const std::wstring               fin    = echange / L"fin";
    const std::wstring               script = echange / L"script";
    const std::string                chemin = Chemin_hote(echange.Chemin());
    Pilote::Creer_fichier(script, "cd '" + Chemin_hote(repertoire) + "' && " + Pilote::Utf8(commande) +
                                      "\necho $? >'" + chemin + "/code'\nmv '" + chemin + "/code' '" +
                                      chemin + "/fin'\n");
    std::wstring        ligne = L"\\\\?\\unix\\bin\\sh " + Pilote::Large(chemin) + L"/script";
    STARTUPINFOW        debut{};
    PROCESS_INFORMATION processus{};
    debut.cb = sizeof debut;
    if (!CreateProcessW(nullptr, ligne.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &debut,
                        &processus)) {
        throw std::runtime_error("CreateProcess : " + std::to_string(GetLastError()));
    }
    CloseHandle(processus.hProcess);
    CloseHandle(processus.hThread);
    return Pilote::Attendre([&] { return Pilote::Existe(fin); }, 60000) &&
           Pilote::Lire_fichier(fin).substr(0, 1) == "0";
}
