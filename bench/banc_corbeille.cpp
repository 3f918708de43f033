// Measures what it costs to put files into the recycle bin, side by side with as many bare renames, in one run.
// banc_corbeille.exe WORK-DIRECTORY : prints rows of the table of ratios; exit status 0 when measured.
#include "mesure.h"
#include "platform/fichiers.h"
#include "platform/systeme.h"
#include "platform/windows.h"
#include "recycle/magasin.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

namespace {
constexpr std::size_t repertoires    = 10;
constexpr std::size_t par_repertoire = 500;  // a directory has a thousand coded names a day
constexpr std::size_t par_lot        = 128;  // files that the erase command hands over at a time
constexpr int         tours          = 5;

std::vector<Depot> Fichiers(const std::wstring & travail) {
    std::vector<Depot> depots;
    for (std::size_t r = 0; r < repertoires; ++r)
        for (std::size_t i = 0; i < par_repertoire; ++i)
            depots.push_back({L"fichier " + std::to_wstring(i) + L".txt",
                              travail + L"\\corbeille" + std::to_wstring(r) + L"\\", 16});
    return depots;
}

double Effacer(Magasin & magasin, const std::vector<Depot> & depots) {
    return Duree([&] {
        for (std::size_t i = 0; i < depots.size(); i += par_lot) {
            const std::size_t        fin = std::min(i + par_lot, depots.size());
            const std::vector<Depot> lot(depots.begin() + static_cast<std::ptrdiff_t>(i),
                                         depots.begin() + static_cast<std::ptrdiff_t>(fin));
            std::size_t              deposes = 0;
            magasin.Deposer(
                lot, Jour_serie(), [] { return true; }, deposes);
        }
    });
}

double Restaurer(Magasin & magasin) {
    std::vector<std::size_t> tous(magasin.Fiches().size());
    std::iota(tous.begin(), tous.end(), std::size_t{0});
    return Duree([&] { magasin.Restaurer(tous, [] { return true; }); });
}

double Renommer(const std::vector<Depot> & depots) {
    std::vector<std::wstring> avant, apres;
    for (std::size_t i = 0; i < depots.size(); ++i) {
        avant.push_back(depots[i].repertoire + depots[i].nom);
        apres.push_back(depots[i].repertoire + L"nom" + std::to_wstring(i) + L".tmp");
    }
    const double duree = Duree([&] {
        for (std::size_t i = 0; i < avant.size(); ++i) MoveFileExW(avant[i].c_str(), apres[i].c_str(), 0);
    });
    for (std::size_t i = 0; i < avant.size(); ++i) MoveFileExW(apres[i].c_str(), avant[i].c_str(), 0);
    return duree;
}

int Mesurer(const std::wstring & travail) {
    const std::vector<Depot> depots = Fichiers(travail);
    for (const Depot & depot : depots)
        if (!Fichier_existe(depot.repertoire + depot.nom)) return 1;
    Magasin magasin;
    magasin.Ouvrir({travail});
    double effacer = 1e9, renommer = 1e9, restaurer = 1e9, relire = 1e9;
    for (int tour = 0; tour < tours; ++tour) {
        renommer = std::min(renommer, Renommer(depots));
        effacer  = std::min(effacer, Effacer(magasin, depots));
        if (magasin.Fiches().size() != depots.size()) return 1;
        relire    = std::min(relire, Duree([&] { magasin.Relire(); }));
        restaurer = std::min(restaurer, Restaurer(magasin));
        if (!magasin.Fiches().empty()) return 1;
    }
    Rangee("5 000 fichiers effacés / renommages nus", effacer, renommer, 3.0);
    std::printf("%-44s %10.3f %10.3f %8.2f\n", "5 000 fichiers récupérés / renommages nus", restaurer,
                renommer, restaurer / renommer);
    std::printf("%-44s %10.3f\n", "lecture de 5 000 fiches (s)", relire);
    return 0;
}
}  // namespace

int wmain(int nombre, wchar_t ** arguments) {
    if (nombre < 2) {
        std::printf("banc_corbeille.exe TRAVAIL\n");
        return 2;
    }
    SetConsoleOutputCP(CP_UTF8);
    try {
        return Mesurer(arguments[1]);
    } catch (const std::exception &) {
        return 1;
    }
}
