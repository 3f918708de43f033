#include "platform/aide.h"

#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/fichiers.h"
#include "platform/programmes.h"
#include "platform/systeme.h"
#include "platform/windows.h"

#include <initializer_list>
#include <shellapi.h>

namespace {
// Recent systems keep a program of some ten kilobytes under the engine's name, which only says that there is no engine.
constexpr std::uint64_t taille_moteur   = 65536;
constexpr UINT_PTR      plus_haut_echec = 32;  // ShellExecute's answers up to it are errors

// What the viewer was opened for.
HWND         demandeur = nullptr;
std::wstring fichier_ouvert;

std::wstring Repertoire_windows() {
    std::wstring chemin(MAX_PATH, L'\0');
    chemin.resize(GetSystemWindowsDirectoryW(chemin.data(), MAX_PATH));
    return chemin;
}

// The first one found is the one that the system starts.
bool Moteur_present() {
    for (const std::wstring & repertoire : {Repertoire_windows(), Repertoire_systeme()}) {
        WIN32_FILE_ATTRIBUTE_DATA moteur{};
        if (GetFileAttributesExW(Joindre(repertoire, L"winhlp32.exe").c_str(), GetFileExInfoStandard,
                                 &moteur))
            return moteur.nFileSizeHigh != 0 || moteur.nFileSizeLow > taille_moteur;
    }
    return false;
}

// Empty when the file is nowhere.
std::wstring Chercher_aide(const std::wstring & nom) {
    const std::wstring windows = Repertoire_windows();
    for (const std::wstring & repertoire :
         {Repertoire_programme(), Joindre(windows, L"Help"), windows, Repertoire_systeme()}) {
        std::wstring chemin = Joindre(repertoire, nom);
        if (Fichier_existe(chemin)) return chemin;
    }
    return {};
}

// A child window asks for the main one: the viewer stays when the child closes.
HWND Fenetre_principale() {
    const HWND active = GetActiveWindow();
    return active == nullptr ? nullptr : GetAncestor(active, GA_ROOTOWNER);
}

// The engine takes paths of the system's code page alone.
bool Ouvrir_hlp(const std::wstring & chemin) {
    const HWND   principale = Fenetre_principale();
    std::wstring transmis;
    if (!Tenter([&] { transmis = Chemin_transmissible(chemin); }) ||
        !WinHelpW(principale, transmis.c_str(), HELP_CONTENTS, 0))
        return false;
    demandeur      = principale;
    fichier_ouvert = transmis;
    return true;
}

// In a process of its own: it can be read while a window of the program waits for an answer.
bool Ouvrir_chm(const std::wstring & chemin) {
    const HINSTANCE reponse = ShellExecuteW(Fenetre_principale(), nullptr, chemin.c_str(), nullptr,
                                            Repertoire_programme().c_str(), SW_SHOWNORMAL);
    return reinterpret_cast<UINT_PTR>(reponse) > plus_haut_echec;
}

std::wstring Nom_chm(const std::wstring & nom) { return nom.substr(0, nom.rfind(L'.')) + L".CHM"; }
}  // namespace

Ouverture_aide Ouvrir_aide(const std::wstring & nom) {
    const std::wstring hlp = Chercher_aide(nom);
    if (!hlp.empty() && Moteur_present() && Ouvrir_hlp(hlp)) return Ouverture_aide::ouverte;
    const std::wstring chm = Chercher_aide(Nom_chm(nom));
    if (!chm.empty() && Ouvrir_chm(chm)) return Ouverture_aide::ouverte;
    return hlp.empty() && chm.empty() ? Ouverture_aide::absente : Ouverture_aide::refusee;
}

void Fermer_aide() {
    if (fichier_ouvert.empty()) return;
    WinHelpW(demandeur, fichier_ouvert.c_str(), HELP_QUIT, 0);
    fichier_ouvert.clear();
}
