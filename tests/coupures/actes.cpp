#include "coupures/actes.h"

#include "fileops/vidage.h"
#include "platform/fichiers.h"
#include "recycle/magasin.h"

#include <stdexcept>

namespace Coupures {

namespace {

bool Toujours() { return true; }

Depot Depot_de(const std::wstring & racine, const std::wstring & dossier, const std::wstring & nom) {
    const std::wstring repertoire = racine + L"\\" + dossier;
    return {nom, repertoire, Longueur_fichier(repertoire + L"\\" + nom)};
}

Magasin Ouvert_dans(const std::wstring & racine) {
    Magasin magasin;
    magasin.Ouvrir({racine + L"\\index"});
    return magasin;
}

// One batch over two directories, then single files as when each is asked about.
void Effacer(const std::wstring & racine) {
    Magasin     magasin = Ouvert_dans(racine);
    std::size_t deposes = 0;
    magasin.Deposer({Depot_de(racine, L"un", L"RAPPORT.DOC"), Depot_de(racine, L"un", L"nom avec blancs.txt"),
                     Depot_de(racine, L"deux", L"RAPPORT.DOC"), Depot_de(racine, L"deux", L"Ωμέγα 文件.txt")},
                    aujourdhui, Toujours, deposes);
    for (const wchar_t * nom : {L"systeme.dat", L"vide"}) {
        magasin.Deposer({Depot_de(racine, L"un", nom)}, aujourdhui, Toujours, deposes);
    }
}

void Purger_par_temps(const std::wstring & racine) {
    Ouvert_dans(racine).Purger({0, 10}, aujourdhui, Toujours);
}

void Purger_par_taille(const std::wstring & racine) {
    Ouvert_dans(racine).Purger({4, 0}, aujourdhui, Toujours);
}

void Restaurer(const std::wstring & racine) { Ouvert_dans(racine).Restaurer({0, 2, 3}, Toujours); }

void Detruire(const std::wstring & racine) { Ouvert_dans(racine).Detruire(Toujours); }

void Ouvrir(const std::wstring & racine) { Ouvert_dans(racine); }

// One store used for a while, as by a user who changes his mind.
void Seance(const std::wstring & racine) {
    Magasin     magasin = Ouvert_dans(racine);
    std::size_t deposes = 0;
    magasin.Deposer({Depot_de(racine, L"un", L"RAPPORT.DOC"), Depot_de(racine, L"deux", L"RAPPORT.DOC")},
                    aujourdhui, Toujours, deposes);
    magasin.Purger({0, 2}, aujourdhui, Toujours);
    magasin.Restaurer({magasin.Fiches().size() - 1}, Toujours);
    magasin.Deposer({Depot_de(racine, L"un", L"systeme.dat"), Depot_de(racine, L"deux", L"RAPPORT.DOC")},
                    aujourdhui, Toujours, deposes);
    magasin.Relire();
    magasin.Restaurer({0, magasin.Fiches().size() - 2}, Toujours);
}

// The first place does not exist and the second is made: the start of an ordinary user.
void Effacer_ailleurs(const std::wstring & racine) {
    Magasin     magasin;
    std::size_t deposes = 0;
    magasin.Ouvrir({racine + L"\\absent\\absent", racine + L"\\index\\KORVANE"});
    magasin.Deposer({Depot_de(racine, L"un", L"RAPPORT.DOC"), Depot_de(racine, L"deux", L"RAPPORT.DOC")},
                    aujourdhui, Toujours, deposes);
}

void Renommer(const std::wstring & racine) {
    Renommer_fichier(racine + L"\\un\\RAPPORT.DOC", racine + L"\\un\\Rapport final.doc");
    Renommer_fichier(racine + L"\\un\\systeme.dat", racine + L"\\un\\autre.dat");
    Renommer_fichier(racine + L"\\deux\\RAPPORT.DOC", racine + L"\\deux\\rapport.doc");
}

void Renommer_repertoire(const std::wstring & racine) {
    const std::wstring ancien = racine + L"\\un", nouveau = racine + L"\\trois";
    Ouvert_dans(racine).Suivre_repertoire(ancien, nouveau, [&] { Renommer_fichier(ancien, nouveau); });
}

// The steps of the command: the files, then the directory.
void Supprimer(const std::wstring & racine) {
    const std::wstring repertoire = racine + L"\\deux";
    Vider_repertoire(repertoire, [](const std::wstring &) { return true; });
    Retirer_repertoire(repertoire);
}

}  // namespace

const std::vector<Acte> & Actes() {
    static const std::vector<Acte> actes = {{L"effacer", Effacer},
                                            {L"effacer_ailleurs", Effacer_ailleurs},
                                            {L"purger_par_temps", Purger_par_temps},
                                            {L"purger_par_taille", Purger_par_taille},
                                            {L"restaurer", Restaurer},
                                            {L"seance", Seance},
                                            {L"detruire", Detruire},
                                            {L"ouvrir", Ouvrir},
                                            {L"renommer", Renommer},
                                            {L"renommer_repertoire", Renommer_repertoire},
                                            {L"supprimer", Supprimer}};
    return actes;
}

const Acte & Trouver_acte(const std::wstring & nom) {
    for (const Acte & acte : Actes()) {
        if (nom == acte.nom) return acte;
    }
    throw std::out_of_range("no such act");
}

}  // namespace Coupures
