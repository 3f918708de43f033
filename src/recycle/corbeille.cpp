#include "recycle/corbeille.h"

#include "app/garde.h"
#include "app/globals.h"
#include "app/settings.h"
#include "platform/chemins.h"
#include "platform/erreur.h"
#include "platform/nombres.h"
#include "platform/profil.h"
#include "platform/systeme.h"

#include <algorithm>
#include <limits>

namespace {

// Characters of the read buffer, terminator included.
constexpr unsigned      tampon_total = 9;
constexpr std::uint64_t plus_grand   = std::numeric_limits<std::int32_t>::max();

std::vector<std::wstring> Lieux() {
    std::vector<std::wstring> lieux{Repertoire_systeme()};
    const std::wstring        donnees = Repertoire_donnees_locales();
    if (!donnees.empty()) lieux.push_back(Joindre(donnees, L"KORVANE"));
    return lieux;
}

void Lire_total() {
    if (variables.Total_corbeille != 0) return;
    const std::wstring total =
        Lire_profil(variables.Fichier_ini, Section::corbeille, Cle::total, L"0", tampon_total);
    variables.Total_corbeille = static_cast<std::int32_t>(std::max(Valeur(total), 0.0));
}

// How many of them the total has room for.
std::size_t Tiennent(const std::vector<Depot> & depots) {
    auto        total = static_cast<std::uint64_t>(std::max(variables.Total_corbeille, 0));
    std::size_t rang  = 0;
    while (rang < depots.size() && depots[rang].taille <= plus_grand - total) total += depots[rang++].taille;
    return rang;
}

Limites_corbeille Limites() { return {variables.Taille_corbeille, variables.Temps_corbeille}; }

}  // namespace

Magasin & Magasin_corbeille() {
    static Magasin magasin;
    return magasin;
}

void Ouvrir_corbeille() {
    Magasin_corbeille().Fermer();
    Tenter(Exiger_corbeille);
}

void Exiger_corbeille() {
    Magasin & magasin = Magasin_corbeille();
    if (magasin.Ouvert()) return;
    variables.Chemin_corbeille.clear();
    Lire_total();
    magasin.Ouvrir(Lieux());
    variables.Chemin_corbeille = Joindre(magasin.Repertoire(), L"KORVANE.");
    Recalculer_total();
}

void Purger_corbeille() {
    Magasin & magasin = Magasin_corbeille();
    if (!magasin.Ouvert()) return;
    variables.Date_du_jour = Jour_serie();
    if (!variables.Limite_corbeille_incorrecte)
        Tenter([&] { magasin.Purger(Limites(), variables.Date_du_jour); });
    Recalculer_total();
    Tenter(Enregistrer_total);
}

void Recalculer_total() {
    variables.Total_corbeille = static_cast<std::int32_t>(std::min(Magasin_corbeille().Total(), plus_grand));
}

void Enregistrer_total() {
    Ecrire_profil(variables.Fichier_ini, Section::corbeille, Cle::total,
                  std::to_wstring(variables.Total_corbeille));
}

std::size_t Deposer_fichiers(const std::vector<Depot> & depots, const std::function<bool()> & continuer) {
    Exiger_corbeille();
    Recalculer_total();
    const std::size_t        tiennent = Tiennent(depots);
    const std::vector<Depot> lot(depots.begin(), depots.begin() + static_cast<std::ptrdiff_t>(tiennent));
    std::size_t              deposes = 0;
    variables.Date_du_jour           = Jour_serie();
    try {
        Magasin_corbeille().Deposer(lot, variables.Date_du_jour, continuer, deposes);
    } catch (...) {
        Recalculer_total();
        throw;
    }
    Recalculer_total();
    if (deposes == tiennent && tiennent < depots.size())
        throw Erreur_execution(Numero::depassement, 0,
                               Joindre(depots[tiennent].repertoire, depots[tiennent].nom));
    return deposes;
}

bool Plus_grand_que_corbeille(std::uint64_t taille) {
    return variables.Taille_corbeille > 0 &&
           taille > static_cast<std::uint64_t>(variables.Taille_corbeille) * 1024;
}
