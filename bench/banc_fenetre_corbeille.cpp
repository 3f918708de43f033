// Measures how long the recycle bin's window takes to open over 5,000 files, from the click to its answer.
// banc_fenetre_corbeille.exe WORK-DIRECTORY PROGRAM.EXE : prints a row of the table of ratios; exit status 0 when measured.
// It writes the index of the system directory, and a size limit into the KORVANE.INI beside the program.
#include "mesure.h"
#include "platform/windows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace {
constexpr int    repertoires    = 10;
constexpr int    par_repertoire = 500;
constexpr int    fichiers       = repertoires * par_repertoire;
constexpr int    tours          = 5;
constexpr double borne          = 0.5;  // seconds

[[noreturn]] void Abandonner(const char * quoi) {
    std::printf("fenêtre de la corbeille, mesure impossible : %s\n", quoi);
    std::exit(1);
}

void Ecrire(const std::wstring & chemin, const std::string & octets, DWORD attributs) {
    HANDLE fichier =
        CreateFileW(chemin.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, attributs, nullptr);
    DWORD ecrits = 0;
    if (fichier == INVALID_HANDLE_VALUE ||
        WriteFile(fichier, octets.data(), static_cast<DWORD>(octets.size()), &ecrits, nullptr) == FALSE)
        Abandonner("écriture");
    CloseHandle(fichier);
}

std::string En_octets(const std::wstring & texte) { return {texte.begin(), texte.end()}; }

// The stored files, and an index that lists them all.
std::wstring Remplir_corbeille(const std::wstring & travail) {
    std::string index;
    for (int r = 0; r < repertoires; ++r) {
        const std::wstring repertoire = travail + L"\\fenetre" + std::to_wstring(r) + L"\\";
        CreateDirectoryW(repertoire.c_str(), nullptr);
        for (int i = 0; i < par_repertoire; ++i) {
            wchar_t code[16];
            std::swprintf(code, 16, L"crb45000.%03d", i);
            Ecrire(repertoire + code, "", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
            index += En_octets(code) + " 00000000 fichier " + std::to_string(i) + ".txt " +
                     En_octets(repertoire) + "\r\n";
        }
    }
    wchar_t systeme[MAX_PATH];
    GetSystemDirectoryW(systeme, MAX_PATH);
    std::wstring chemin = std::wstring(systeme) + L"\\KORVANE.CRB";
    Ecrire(chemin, index, FILE_ATTRIBUTE_HIDDEN);
    return chemin;
}

bool Porte_le_nom(HWND fenetre, const wchar_t * nom) {
    wchar_t    lu[64] = L"";
    const auto atome  = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(fenetre, L"nom")));
    return atome != 0 && GlobalGetAtomNameW(atome, lu, 64) != 0 && std::wstring(lu) == nom;
}

struct Recherche {
    DWORD           processus;
    const wchar_t * nom;
    HWND            trouvee;
};

BOOL CALLBACK Examiner(HWND fenetre, LPARAM parametre) {
    auto & r   = *reinterpret_cast<Recherche *>(parametre);
    DWORD  pid = 0;
    GetWindowThreadProcessId(fenetre, &pid);
    if (pid != r.processus || IsWindowVisible(fenetre) == FALSE || !Porte_le_nom(fenetre, r.nom)) return TRUE;
    r.trouvee = fenetre;
    return FALSE;
}

HWND Attendre(DWORD processus, HWND mere, const wchar_t * nom, DWORD pas) {
    const double limite = Secondes() + 20;
    Recherche    recherche{processus, nom, nullptr};
    while (recherche.trouvee == nullptr && Secondes() < limite) {
        if (mere == nullptr)
            EnumWindows(Examiner, reinterpret_cast<LPARAM>(&recherche));
        else
            EnumChildWindows(mere, Examiner, reinterpret_cast<LPARAM>(&recherche));
        if (recherche.trouvee == nullptr) Sleep(pas);
    }
    if (recherche.trouvee == nullptr) Abandonner("fenêtre absente");
    return recherche.trouvee;
}

void Attendre_reponse(HWND fenetre) {
    DWORD_PTR reponse = 0;
    if (SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_BLOCK, 20000, &reponse) == 0)
        Abandonner("sans réponse");
}

double Ouvrir(DWORD processus) {
    const HWND principale = Attendre(processus, nullptr, L"Gestion_Fichiers", 20);
    while (GetPropW(principale, L"sablier") != nullptr) Sleep(20);
    Attendre_reponse(principale);
    const HWND   bouton = Attendre(processus, principale, L"Corbeille", 20);
    const double debut  = Secondes();
    PostMessageW(bouton, BM_CLICK, 0, 0);
    const HWND fenetre = Attendre(processus, nullptr, L"Corbeille", 1);
    const HWND liste   = Attendre(processus, fenetre, L"Fichier_effacé", 1);
    Attendre_reponse(fenetre);
    const double duree = Secondes() - debut;
    if (SendMessageW(liste, LB_GETCOUNT, 0, 0) != fichiers) Abandonner("liste incomplète");
    return duree;
}

double Mesurer(std::wstring ligne) {
    STARTUPINFOW        demarrage{};
    PROCESS_INFORMATION programme{};
    demarrage.cb = sizeof demarrage;
    if (CreateProcessW(nullptr, ligne.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &demarrage,
                       &programme) == FALSE)
        Abandonner("démarrage");
    const double duree = Ouvrir(programme.dwProcessId);
    TerminateProcess(programme.hProcess, 0);
    WaitForSingleObject(programme.hProcess, 5000);
    CloseHandle(programme.hThread);
    CloseHandle(programme.hProcess);
    return duree;
}
}  // namespace

int wmain(int nombre, wchar_t ** arguments) {
    if (nombre < 3) {
        std::printf("banc_fenetre_corbeille.exe TRAVAIL PROGRAMME\n");
        return 2;
    }
    SetConsoleOutputCP(CP_UTF8);
    const std::wstring index     = Remplir_corbeille(arguments[1]);
    const std::wstring programme = arguments[2];
    const std::wstring reglages  = programme.substr(0, programme.rfind(L'\\')) + L"\\KORVANE.INI";
    WritePrivateProfileStringW(L"Corbeille", L"Taille", L"9999", reglages.c_str());
    // What else the machine does only ever adds time: the shortest run is the nearest to the work itself.
    double meilleure = Mesurer(L"\"" + programme + L"\"");
    for (int tour = 1; tour < tours; ++tour)
        meilleure = std::min(meilleure, Mesurer(L"\"" + programme + L"\""));
    WritePrivateProfileStringW(L"Corbeille", nullptr, nullptr, reglages.c_str());
    SetFileAttributesW(index.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(index.c_str());
    Rangee_absolue("corbeille de 5 000 fichiers, ouverture (s)", meilleure, borne);
    return 0;
}
