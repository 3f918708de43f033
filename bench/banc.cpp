// Measures the program's own engine and services side by side with what a user would have instead, in one run.
// banc.exe DIRECTORY-OF-100000-FILES WORK-DIRECTORY PROGRAM.EXE : prints a table of ratios; exit status 0 when measured.
#include "mesure.h"
#include "platform/fichiers.h"
#include "platform/textes.h"
#include "platform/transfert.h"
#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/fenetre.h"
#include "toolkit/listes_disque.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace {
// What else the machine does only ever adds time: the shortest run is the nearest to the work itself.
double Meilleure(const std::vector<double> & durees) {
    return *std::min_element(durees.begin(), durees.end());
}

struct Paire {
    double nous  = 0;
    double autre = 0;
};

// Both sides take turns, so that the state of the machine weighs on both alike.
Paire Cote_a_cote(int tours, const std::function<double()> & nous, const std::function<double()> & autre) {
    std::vector<double> a, b;
    for (int tour = 0; tour < tours; ++tour) {
        b.push_back(autre());
        a.push_back(nous());
    }
    return {Meilleure(a), Meilleure(b)};
}

void Rangee(const char * quoi, const Paire & mesure, double borne) {
    ::Rangee(quoi, mesure.nous, mesure.autre, borne);
}

void Ecrire_contenu(const std::wstring & chemin, std::uint64_t taille) {
    Poignee_fichier fichier(
        CreateFileW(Forme_longue(chemin).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    std::vector<char> bloc(1 << 20);
    for (std::size_t i = 0; i < bloc.size(); ++i) bloc[i] = static_cast<char>(i * 31 + (i >> 8));
    while (taille > 0) {
        DWORD      ecrits = 0;
        const auto part   = static_cast<DWORD>(std::min<std::uint64_t>(taille, bloc.size()));
        WriteFile(fichier.Valeur(), bloc.data(), part, &ecrits, nullptr);
        taille -= part;
    }
}

// The copy engine as a command runs it: the stop test and the look at the events at each block.
void Copier_par_moteur(const std::wstring & source, const std::wstring & cible) {
    Transfert transfert(source);
    transfert.Creer_cible(cible);
    while (transfert.Bloc()) Application::Laisser_passer();
    transfert.Terminer(false);
}

void Mesurer_copies(const std::wstring & travail) {
    const std::wstring grand = travail + L"\\grand.bin";
    const std::wstring copie = travail + L"\\copie.bin";
    Ecrire_contenu(grand, 1ULL << 30);
    const auto une = [&](const std::function<void()> & copier) {
        const double duree = Duree(copier);
        DeleteFileW(copie.c_str());
        return duree;
    };
    une([&] { CopyFileExW(grand.c_str(), copie.c_str(), nullptr, nullptr, nullptr, 0); });
    Rangee("copie de 1 Go / CopyFileExW",
           Cote_a_cote(
               5, [&] { return une([&] { Copier_par_moteur(grand, copie); }); },
               [&] {
                   return une(
                       [&] { CopyFileExW(grand.c_str(), copie.c_str(), nullptr, nullptr, nullptr, 0); });
               }),
           1.05);
    DeleteFileW(grand.c_str());

    const int                 nombre = 2000;
    std::vector<std::wstring> sources, cibles;
    CreateDirectoryW((travail + L"\\petits").c_str(), nullptr);
    CreateDirectoryW((travail + L"\\copies").c_str(), nullptr);
    for (int i = 0; i < nombre; ++i) {
        const std::wstring nom = L"\\fichier" + std::to_wstring(i) + L".dat";
        sources.push_back(travail + L"\\petits" + nom);
        cibles.push_back(travail + L"\\copies" + nom);
        Ecrire_contenu(sources.back(), 16384);
    }
    const auto lot = [&](const std::function<void(std::size_t)> & copier) {
        const double duree = Duree([&] {
            for (std::size_t i = 0; i < sources.size(); ++i) copier(i);
        });
        for (const std::wstring & cible : cibles) DeleteFileW(cible.c_str());
        return duree;
    };
    const auto systeme = [&](std::size_t i) {
        CopyFileExW(sources[i].c_str(), cibles[i].c_str(), nullptr, nullptr, nullptr, 0);
    };
    lot(systeme);
    Rangee("2 000 fichiers de 16 Ko / CopyFileExW",
           Cote_a_cote(
               5, [&] { return lot([&](std::size_t i) { Copier_par_moteur(sources[i], cibles[i]); }); },
               [&] { return lot(systeme); }),
           1.20);
}

void Enumerer(const std::wstring & repertoire) {
    WIN32_FIND_DATAW  trouve{};
    Poignee_recherche recherche(FindFirstFileExW((repertoire + L"\\*").c_str(), FindExInfoBasic, &trouve,
                                                 FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    std::uint64_t     total = 0;
    do total += trouve.nFileSizeLow;
    while (FindNextFileW(recherche.Valeur(), &trouve) != FALSE);
}

void Mesurer_liste(const std::wstring & repertoire) {
    Fenetre        fenetre(L"Banc", L"Banc", 6000, 6000, Bordure::principale);
    Liste_fichiers liste(fenetre, {L"Fichiers", 0, 0, 6000, 6000});
    fenetre.Show();
    Enumerer(repertoire);
    const auto montrer = [&] {
        liste.Path(L"c:\\");
        const double duree = Duree([&] {
            liste.Path(repertoire);
            UpdateWindow(liste.Poignee());
        });
        return duree;
    };
    Rangee("100 000 fichiers affichés / énumération nue",
           Cote_a_cote(5, montrer, [&] { return Duree([&] { Enumerer(repertoire); }); }), 2.0);
    std::uint64_t total  = 0;
    const double  toutes = Duree([&] {
        liste.Tout_selectionner(true);
        for (const int index : liste.Selection())
            total += liste.Entrees()[static_cast<std::size_t>(index)].taille;
    });
    Rangee_absolue("tout sélectionner et compter (s)", toutes, 0.1);
}

HWND Attendre_fenetre(DWORD processus, const std::function<bool(HWND)> & voulue) {
    struct Recherche {
        DWORD                             processus;
        const std::function<bool(HWND)> * voulue;
        HWND                              trouvee;
    } recherche{processus, &voulue, nullptr};
    const double limite = Secondes() + 20;
    while (recherche.trouvee == nullptr && Secondes() < limite) {
        EnumWindows(
            [](HWND fenetre, LPARAM parametre) -> BOOL {
                auto & r   = *reinterpret_cast<Recherche *>(parametre);
                DWORD  pid = 0;
                GetWindowThreadProcessId(fenetre, &pid);
                if (pid != r.processus || IsWindowVisible(fenetre) == FALSE || !(*r.voulue)(fenetre))
                    return TRUE;
                r.trouvee = fenetre;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&recherche));
        // Looking for the window takes the same server that both programs start with.
        if (recherche.trouvee == nullptr) Sleep(5);
    }
    return recherche.trouvee;
}

// Seconds from the start of a program to its window answering.
double Demarrer(std::wstring ligne, const std::function<bool(HWND)> & voulue) {
    STARTUPINFOW        demarrage{};
    PROCESS_INFORMATION programme{};
    demarrage.cb       = sizeof demarrage;
    const double debut = Secondes();
    if (CreateProcessW(nullptr, ligne.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &demarrage,
                       &programme) == FALSE) {
        std::printf("démarrage impossible : %ls\n", ligne.c_str());
        std::exit(1);
    }
    const HWND fenetre = Attendre_fenetre(programme.dwProcessId, voulue);
    DWORD_PTR  reponse = 0;
    SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_BLOCK, 10000, &reponse);
    const double duree = Secondes() - debut;
    TerminateProcess(programme.hProcess, 0);
    WaitForSingleObject(programme.hProcess, 5000);
    CloseHandle(programme.hThread);
    CloseHandle(programme.hProcess);
    return duree;
}

void Mesurer_demarrage(const std::wstring & programme) {
    const auto nous = [&] {
        return Demarrer(L"\"" + programme + L"\"", [](HWND fenetre) {
            wchar_t    nom[64] = L"";
            const auto atome   = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(fenetre, L"nom")));
            return atome != 0 && GlobalGetAtomNameW(atome, nom, 64) != 0 &&
                   std::wstring(nom) == L"Gestion_Fichiers" && GetPropW(fenetre, L"sablier") == nullptr;
        });
    };
    const auto editeur = [] {
        return Demarrer(L"notepad.exe", [](HWND fenetre) {
            wchar_t classe[64] = L"";
            return GetClassNameW(fenetre, classe, 64) != 0 && std::wstring(classe) == L"Notepad";
        });
    };
    nous();
    editeur();
    Rangee("démarrage / éditeur du système", Cote_a_cote(7, nous, editeur), 1.5);
    WIN32_FILE_ATTRIBUTE_DATA fichier{};
    GetFileAttributesExW(programme.c_str(), GetFileExInfoStandard, &fichier);
    Rangee_absolue("taille de l'exécutable (Mo)", fichier.nFileSizeLow / 1048576.0, 1.5);
}
}  // namespace

int wmain(int nombre, wchar_t ** arguments) {
    if (nombre < 4) {
        std::printf("banc.exe REPERTOIRE TRAVAIL PROGRAMME\n");
        return 2;
    }
    SetConsoleOutputCP(CP_UTF8);
    Application::Initialiser();
    std::printf("%-44s %10s %10s %8s\n", "", "KORVANE", "autre", "rapport");
    Mesurer_copies(arguments[2]);
    Mesurer_liste(arguments[1]);
    Mesurer_demarrage(arguments[3]);
    return 0;
}
