// Measures the search of a whole drive, through its real window, side by side with a bare walk of the drive.
// banc_recherche.exe DRIVE PATTERN [READY-FILE] : prints rows of the table of ratios, times in seconds; with a third argument it
// makes that file once the results show and keeps them until the file is taken away, so that its memory can be looked at.
#include "app/fenetres.h"
#include "app/globals.h"
#include "forms/cde_chercher.h"
#include "forms/cherche_fichier.h"
#include "forms/gestion_fichiers.h"
#include "mesure.h"
#include "platform/systeme.h"
#include "platform/windows.h"
#include "search/cherche_fichier.h"
#include "toolkit/application.h"
#include "toolkit/minuterie.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <random>
#include <string>

namespace {
constexpr int tours  = 5;
constexpr int arrets = 40;

struct Compte {
    std::size_t repertoires = 0;
    std::size_t fichiers    = 0;
};

// What any program must do to see the whole drive.
void Parcourir(const std::wstring & repertoire, Compte & compte) {
    ++compte.repertoires;
    WIN32_FIND_DATAW trouve{};
    const HANDLE     recherche = FindFirstFileExW((repertoire + L"\\*").c_str(), FindExInfoBasic, &trouve,
                                                  FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (recherche == INVALID_HANDLE_VALUE) return;
    do {
        if ((trouve.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            ++compte.fichiers;
            continue;
        }
        const std::wstring nom = trouve.cFileName;
        if (nom != L"." && nom != L"..") Parcourir(repertoire + L"\\" + nom, compte);
    } while (FindNextFileW(recherche, &trouve) != FALSE);
    FindClose(recherche);
}

Cherche_Fichier & Fenetre_resultats() { return static_cast<Cherche_Fichier &>(*fenetres.cherche_fichier); }

// A whole search, from the window's opening to the choice it offers, which `a_la_fin` may look at; seconds.
double Chercher(const std::function<void(Cherche_Fichier &)> & a_la_fin = {}) {
    const double debut = Secondes();
    double       duree = 0;
    Minuterie    veille;
    veille.Interval(1);
    veille.Timer = [&] {
        if (!variables.Recherche_faite) return;
        duree = Secondes() - debut;
        veille.Enabled(false);
        if (a_la_fin) a_la_fin(Fenetre_resultats());
        Fenetre_resultats().Annule.Cliquer();
    };
    variables.Recherche_faite    = false;
    variables.Recherche_en_cours = true;
    veille.Enabled(true);
    Chercher_fichiers();
    return duree;
}

double Premiere() {
    variables.Arborescence_perimee = true;
    return Chercher();
}

// A click on the cancel button from outside, after a while; how long the window stayed, in seconds.
struct Arret {
    DWORD  apres   = 0;  // ms
    HWND   bouton  = nullptr;
    double attente = 0;
};

DWORD WINAPI Arreter(void * parametre) {
    auto & arret = *static_cast<Arret *>(parametre);
    Sleep(arret.apres);
    const HWND   fenetre = GetAncestor(arret.bouton, GA_ROOT);
    const double debut   = Secondes();
    PostMessageW(arret.bouton, BM_CLICK, 0, 0);
    while (IsWindowVisible(fenetre) != FALSE) Sleep(1);
    arret.attente = Secondes() - debut;
    return 0;
}

double Mesurer_arret(DWORD apres, bool perimee) {
    variables.Arborescence_perimee = perimee;
    Arret arret{apres, Fenetre_resultats().Annule.Poignee()};
    variables.Recherche_en_cours = true;
    const HANDLE fil             = CreateThread(nullptr, 0, Arreter, &arret, 0, nullptr);
    Chercher_fichiers();
    WaitForSingleObject(fil, INFINITE);
    CloseHandle(fil);
    return arret.attente;
}

// Half of the stops fall into walks, half into searches of the whole tree kept.
double Pire_arret(double premiere, double seconde) {
    std::mt19937 hasard(1);
    const auto   avant = [&](double duree) {
        return std::uniform_int_distribution<DWORD>(10, static_cast<DWORD>(duree * 1000 * 0.9))(hasard);
    };
    double pire = 0;
    for (int i = 0; i < arrets; ++i) pire = std::max(pire, Mesurer_arret(avant(premiere), true));
    Premiere();
    for (int i = 0; i < arrets; ++i) pire = std::max(pire, Mesurer_arret(avant(seconde), false));
    return pire;
}

// Turn by turn, so that the state of the machine weighs on all alike; the shortest run is the nearest to the work itself.
void Mesurer(const std::wstring & unite) {
    std::array<double, 3> meilleures{1e9, 1e9, 1e9};
    Compte                compte;
    Parcourir(unite, compte);
    for (int tour = 0; tour < tours; ++tour) {
        const double debut = Secondes();
        Parcourir(unite, compte = {});
        const std::array<double, 3> durees{Secondes() - debut, Premiere(), Chercher()};
        for (std::size_t i = 0; i < durees.size(); ++i) meilleures[i] = std::min(meilleures[i], durees[i]);
    }
    std::printf("(%zu répertoires, %zu fichiers)\n", compte.repertoires, compte.fichiers);
    Rangee("première recherche / parcours nu", meilleures[1], meilleures[0], 2.2);
    Rangee("recherche suivante / parcours nu", meilleures[2], meilleures[0], 1.2);
    Rangee_absolue("arrêt d'une recherche, au pire (s)", Pire_arret(meilleures[1], meilleures[2]), 0.1);
}

void Garder_les_resultats(const std::wstring & pret) {
    variables.Arborescence_perimee = true;
    Chercher([&](const Cherche_Fichier & c) {
        std::printf("(%d fichiers trouvés)\n", c.Liste_sél.ListCount());
        std::fflush(stdout);
        CloseHandle(CreateFileW(pret.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        const double limite = Secondes() + 60;
        while (GetFileAttributesW(pret.c_str()) != INVALID_FILE_ATTRIBUTES && Secondes() < limite)
            Application::Patienter(100);
    });
}
}  // namespace

int wmain(int nombre, wchar_t ** arguments) {
    if (nombre < 3) {
        std::printf("banc_recherche.exe UNITE MODELE [FICHIER-PRET]\n");
        return 2;
    }
    SetConsoleOutputCP(CP_UTF8);
    Application::Initialiser();
    Gestion_Fichiers principale;
    fenetres.principale   = &principale;
    fenetres.cde_chercher = std::make_unique<Cde_Chercher>();
    principale.Unité_srce.Drive(arguments[1]);
    principale.Show();
    variables.Modele_cherche = arguments[2];
    if (nombre > 3)
        Garder_les_resultats(arguments[3]);
    else
        Mesurer(arguments[1]);
    fenetres.Fermer_filles();
    return 0;
}
